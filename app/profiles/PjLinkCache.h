#pragma once

#include <string>

#include "device/channels/PjLinkChannel.h"

// Remembers the protocol class and the inputs of PJLink projectors between runs, in one file for
// each address in the user's cache folder. A file is used for a day. One that is damaged, too old
// or of another version is ignored, and any may be deleted.

/// What is remembered of the projector at an address, given as in `PjLinkChannel::Address`.
PjLinkFacts ReadPjLinkCache(const std::string& address);

/// Remembers these facts; does nothing if the file cannot be written.
void WritePjLinkCache(const std::string& address, const PjLinkFacts& facts);
