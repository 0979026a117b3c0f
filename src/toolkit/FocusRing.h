#pragma once

#include <QPointer>
#include <QWidget>

#include "Namespace.h"

namespace AdvancedControl {

/// A ring around the control of a window that has the focus, once the user moves the focus with
/// keys. Sliders draw their own. User-interface thread only.
class FocusRing final : public QWidget {
  Q_OBJECT

 public:
  /// The ring is a child of the focused control's parent and dies with it.
  explicit FocusRing(QWidget& window);

  bool eventFilter(QObject* control, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow(QWidget* control);
  void Place();

  QWidget& window_;
  QPointer<QWidget> control_;
};

}  // namespace AdvancedControl
