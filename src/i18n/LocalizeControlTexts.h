#pragma once

#include <QString>

#include "AdvancedControlExport.h"
#include "i18n/Catalog.h"

class QWidget;

inline namespace AdvancedControl {

/// Replaces the caption of `dialog` and of each of its direct children, where it has the form
/// number, ";", default text, by the catalog text of that number in `category`. Other captions and
/// nested children are left alone. Without a catalog nothing changes.
ADVANCED_CONTROL_EXPORT void LocalizeControlTexts(int category, QWidget& dialog);

/// A catalog text for the user interface; see `CatalogText`.
template <class... Inserts>
QString CatalogString(int category, int number, const Inserts&... inserts) {
  return QString::fromStdString(CatalogText(category, number, inserts...));
}

}  // namespace AdvancedControl
