#pragma once

#include "host/CAdvanceDlg.h"

/// Expects each row of the shown page to be enabled and to show the projector's value.
void ExpectShowsProjector(CAdvanceDlg& dialog);
