#pragma once

#include <QScrollArea>

#include "Namespace.h"

namespace AdvancedControl {

/// A frameless view of contents that the screen may have no room for: they are as large as the view
/// or scroll, and the control that gets the focus is brought into sight.
class FittedScroll : public QScrollArea {
  Q_OBJECT

 public:
  /// `contents`, shown without a background of its own, comes to belong to the view.
  FittedScroll(QWidget* contents, QWidget* parent);

 private:
  void BringIntoSight(QWidget& control);
};

/// The largest size that leaves `window` with its frame on its screen.
QSize RoomOnScreen(const QWidget& window);

/// `wanted`, or what the screen has room for, with a scroll bar for what then is cut off.
QSize FittedToScreen(const QWidget& window, QSize wanted);

/// Puts `window` over the middle of `owner`, or as near as the screen allows.
void CentreOnScreen(QWidget& window, const QWidget& owner);

}  // namespace AdvancedControl
