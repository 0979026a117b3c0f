#pragma once

#include <QString>

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "i18n/Catalog.h"

class QWidget;

namespace AdvancedControl {

/// Localizes the captions of `dialog` and its direct children: a caption of the form
/// "number;default text" is replaced with the catalog text of that number in `category`. Other
/// captions and nested children do not change, and without a catalog nothing does. If the
/// catalog's language runs from right to left, so does the dialog. User-interface thread only.
ADVANCED_CONTROL_EXPORT void LocalizeControlTexts(int category, QWidget& dialog);

/// A catalog text for the user interface; see `CatalogText`.
template <class... Inserts>
QString CatalogString(int category, int number, const Inserts&... inserts) {
  return QString::fromStdString(CatalogText(category, number, inserts...));
}

}  // namespace AdvancedControl
