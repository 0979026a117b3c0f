#pragma once

#include "app/acctl/Arguments.h"

/// Takes the defaults of options from the user's configuration file, and then from environment
/// variables such as ACCTL_JOBS. An error is stored in the arguments.
void TakeOwnSettings(Arguments& arguments);
