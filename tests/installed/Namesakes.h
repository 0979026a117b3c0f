#pragma once

/// How often the library has called one of the host's functions instead of its own.
int NamesakeCalls();
