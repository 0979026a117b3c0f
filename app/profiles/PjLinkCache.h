#pragma once

#include <string>

#include "device/channels/PjLinkChannel.h"

// What PJLink projectors are, kept from one program to the next in the user's cache folder, a file
// for each address: the protocol's class and the inputs with their names. It holds for a day. A
// file that is damaged, too old or from another version is as none, and any may be deleted.

/// What is remembered of the projector at that address, as `PjLinkChannel::Address` says it.
PjLinkFacts ReadPjLinkCache(const std::string& address);

/// Remembers it. Where that fails, nothing is.
void WritePjLinkCache(const std::string& address, const PjLinkFacts& facts);
