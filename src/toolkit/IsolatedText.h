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
/// have no marks. An empty check box can be seen on a dark background, too, where the frame that
/// the style gives it is as dark. User-interface thread only.
class IsolatedTexts : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override {
    return Isolated(QStyledItemDelegate::displayText(value, locale));
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    constexpr int kDark = 128;
    constexpr int kTwice = 200;  // percent
    QStyledItemDelegate::initStyleOption(option, index);
    const QColor box = option->palette.color(QPalette::Base);
    if (option->features.testFlag(QStyleOptionViewItem::HasCheckIndicator) &&
        box.lightness() < kDark)
      option->palette.setColor(QPalette::Base, box.lighter(kTwice));
  }
};

}  // namespace AdvancedControl
