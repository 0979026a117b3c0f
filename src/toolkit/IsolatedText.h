#pragma once

#include <QString>
#include <QStyledItemDelegate>

#include "Namespace.h"

namespace AdvancedControl {

/// `text` as it reads by itself, whatever the direction of what it is shown in: from right to left
/// "#1-Default" would become "Default-#1". For drawing alone: the marks are no part of the text.
inline QString Isolated(const QString& text) {
  return QChar(0x2068) + text + QChar(0x2069);  // first strong isolate, pop directional isolate
}

/// Draws the texts of a view's items so; what is copied or read out stays as it is.
class IsolatedTexts : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override {
    return Isolated(QStyledItemDelegate::displayText(value, locale));
  }
};

}  // namespace AdvancedControl
