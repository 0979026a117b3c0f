#pragma once

/// What a library hands to its users; everything else stays inside it.
#define ADVANCED_CONTROL_EXPORT __attribute__((visibility("default")))
