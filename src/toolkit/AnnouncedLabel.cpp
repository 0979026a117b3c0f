#include "toolkit/AnnouncedLabel.h"

#include <QAccessible>

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

}  // namespace AdvancedControl
