#pragma once

#include <QScrollArea>

#include "Namespace.h"

namespace AdvancedControl {

/// A frameless view for contents that may be too large for the screen. They fill the view or
/// scroll; the control that gets the focus is scrolled into view. User-interface thread only.
class FittedScroll : public QScrollArea {
  Q_OBJECT

 public:
  /// The view takes ownership of `contents`, and shows it without its own background.
  FittedScroll(QWidget* contents, QWidget* parent);

  /// `control` must be inside the contents.
  void ScrollIntoView(QWidget& control);
};

/// The largest size of `window` that fits on its screen, together with its frame.
QSize AvailableSize(const QWidget& window);

/// `wanted`, limited to the size of the screen. If one dimension is too large, the other has space
/// for a scroll bar.
QSize FittedToScreen(const QWidget& window, QSize wanted);

/// Centres `window` on `owner`, or as near to that as the screen allows.
void CentreOnScreen(QWidget& window, const QWidget& owner);

}  // namespace AdvancedControl
