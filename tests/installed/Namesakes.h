#pragma once

/// How often the library has called one of the host's functions in place of its own.
int NamesakeCalls();
