#pragma once

#include <QString>
#include <QStyledItemDelegate>

#include "Namespace.h"

namespace AdvancedControl {

/// Keeps the text's own direction in a context of the other direction; in right-to-left text,
/// "#1-Default" would otherwise be drawn as "Default-#1". Use it only for drawing, because it adds
/// invisible marks. Any thread.
inline QString Isolated(const QString& text) {
  return QChar(0x2068) + text + QChar(0x2069);  // first strong isolate, pop directional isolate
}

/// Draws the texts of a view's items with `Isolated`. Copied texts and those for screen readers
/// have no marks. User-interface thread only.
class IsolatedTexts : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override {
    return Isolated(QStyledItemDelegate::displayText(value, locale));
  }
};

}  // namespace AdvancedControl
