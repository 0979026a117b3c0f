#pragma once

#include <vector>

#include <QString>

#include "app/profiles/ProfileFile.h"

// Results that are texts are one line on what went wrong, empty when nothing did.

/// Makes the folder where it is missing.
QString MakePictureFolder(const QString& folder);

/// Saves a picture (PNG) of a projector's dialog with this tab selected.
QString SaveScreenshot(const ProjectorProfile& profile, int tab, const QString& fileName);

struct TourResult {
  int pictures = 0;
  int projectors = 0;  ///< Those whose dialogs look different.
  QString error;
};

/// Opens every projector and saves pictures of all tabs of each whose pages or rows differ from all
/// before it, as <type>-<code>-<tab number>-<tab>.png, with an index.html that shows them.
TourResult SaveTour(const std::vector<ProjectorProfile>& profiles, const QString& folder);
