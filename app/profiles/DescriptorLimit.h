#pragma once

/// Lets this process open as many files and sockets as it may. The usual limit allows a fleet only
/// a thousand connections.
void RaiseDescriptorLimit();
