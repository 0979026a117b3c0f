#include "toolkit/NumberField.h"

#include <algorithm>

#include <QPainter>
#include <QStyleOptionFrame>

namespace AdvancedControl {

namespace {

// In pixels.
constexpr int kAround = 16;   // at both sides of a number
constexpr int kMargins = 12;  // the least around a number with a unit
constexpr int kUnitMargin = 4;

// A word is divided from the number; whether a sign such as "%" is depends on the language, and the
// sign then begins with a space.
bool IsWord(const QString& unit) { return !unit.isEmpty() && unit.front().isLetter(); }

int UnitGap(const QFontMetrics& metrics, const QString& unit) {
  return IsWord(unit) ? metrics.horizontalAdvance(QLatin1Char(' ')) : 0;
}

}  // namespace

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setFocusPolicy(Qt::ClickFocus);
  setAlignment(Qt::AlignRight);
  setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-00000")) + kAround);
}

void NumberField::SetUnit(const QString& unit, const QString& widest) {
  unit_ = unit;
  const QFontMetrics metrics = fontMetrics();
  const int room = UnitGap(metrics, unit) + metrics.horizontalAdvance(unit);
  // In a mirrored layout the number stays at the right, and a word is drawn at its left.
  if (!isRightToLeft() || !IsWord(unit)) setTextMargins(0, 0, room, 0);
  setFixedWidth(std::max(width(), metrics.horizontalAdvance(widest) + room + kMargins));
}

void NumberField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (unit_.isEmpty() || text().isEmpty()) return;
  QStyleOptionFrame option;
  initStyleOption(&option);
  QRect inside = style()
                     ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                     .adjusted(kUnitMargin, 0, -kUnitMargin, 0);
  if (isRightToLeft() && IsWord(unit_)) {
    inside.setRight(inside.right() - fontMetrics().horizontalAdvance(text()) -
                    UnitGap(fontMetrics(), unit_));
  }
  QPainter painter(this);
  painter.drawText(inside, Qt::AlignVCenter | Qt::AlignRight | Qt::AlignAbsolute, unit_);
}

}  // namespace AdvancedControl
