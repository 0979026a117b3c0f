#include "toolkit/AnnouncedLabel.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QStylePainter>
#include <QTextDocument>
#include <QToolTip>

namespace AdvancedControl {

// Some platforms do not pass an alert on. There, what is announced is a notification that appears.
void AnnouncedLabel::Announce(const QString& text) {
  setText(text);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  if (!isVisible()) return;  // announced when it is shown
  QAccessibleEvent shown(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

// Formatted as a paragraph, because a tool tip of plain text has only one line.
bool AnnouncedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || width() >= sizeHint().width()) {
    return QLabel::event(event);
  }
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Qt::convertFromPlainText(text()),
                     this);
  return true;
}

void AnnouncedLabel::paintEvent(QPaintEvent* event) {
  if (width() >= sizeHint().width()) return QLabel::paintEvent(event);
  QStylePainter painter(this);
  const bool isRightToLeft = text().isRightToLeft();
  const auto start = (isRightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
  const auto direction = isRightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
  painter.drawItemText(rect(), static_cast<int>(start | Qt::AlignAbsolute) | direction, palette(),
                       isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, width()),
                       foregroundRole());
}

}  // namespace AdvancedControl
