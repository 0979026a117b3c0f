#pragma once

#include "host/CAdvanceDlg.h"

/// Each row of the page in front shows, in use, what the projector holds.
void ExpectShowsProjector(CAdvanceDlg& dialog);
