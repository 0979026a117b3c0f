#include "toolkit/NumberField.h"

#include <algorithm>

#include <QPainter>
#include <QStyleOptionFrame>

namespace {

// In pixels.
constexpr int kAround = 16;  // frame and margins at both sides of the number
constexpr int kUnitGap = 4;
constexpr int kUnitMargin = 2;

}  // namespace

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setFocusPolicy(Qt::ClickFocus);
  setAlignment(Qt::AlignRight);
  setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-00000")) + kAround);
}

void NumberField::SetUnit(const QString& unit) {
  unit_ = unit;
  const int room = unit.isEmpty() ? 0 : fontMetrics().horizontalAdvance(unit) + kUnitGap;
  setTextMargins(isRightToLeft() ? room : 0, 0, isRightToLeft() ? 0 : room, 0);
  const int number = fontMetrics().horizontalAdvance(QStringLiteral("-000"));
  setFixedWidth(std::max(width(), number + room + kAround));
}

void NumberField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (unit_.isEmpty() || text().isEmpty()) return;
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect inside = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .adjusted(kUnitMargin, 0, -kUnitMargin, 0);
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(inside, Qt::AlignVCenter | (isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight),
                   unit_);
}
