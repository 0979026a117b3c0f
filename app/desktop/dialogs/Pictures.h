#pragma once

#include <vector>

#include <QString>

#include "fleet/FleetProfile.h"

// A text as a result is a one-line error, empty on success.

/// Creates the folder if it does not exist.
QString MakePictureFolder(const QString& folder);

/// Saves a picture (PNG) of a projector's dialog with this tab, from 0, selected.
QString SaveScreenshot(const FleetProfile& profile, int tab, const QString& fileName);

struct TourResult {
  int pictures = 0;
  int projectors = 0;  ///< Projectors whose dialogs differ from all before.
  QString error;
};

/// Saves pictures of all tabs of every projector whose pages or rows differ from those of all
/// projectors before it. The files are called <type>-<code>-<tab number>-<tab>.png; an index.html
/// shows them.
TourResult SaveTour(const std::vector<FleetProfile>& profiles, const QString& folder);
