#include "toolkit/DragBubble.h"

#include <algorithm>

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolTip>

#include "toolkit/CSliderCtrl.h"

namespace AdvancedControl {

namespace {

constexpr int kGap = 4;

// A child of the slider's window instead of a window, so that the window manager does not affect
// it.
class DragBubble final : public QLabel {
 public:
  explicit DragBubble(CSliderCtrl& slider) : QLabel(slider.window()), slider_(slider) {
    setFrameStyle(Box | Plain);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    setMargin(kGap / 2);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_DeleteOnClose);
    slider.installEventFilter(this);
    connect(&slider, &CSliderCtrl::Scrolling, this, [this](bool goesOn) {
      if (!goesOn) close();
    });
    connect(&slider, &QObject::destroyed, this, &QWidget::close);
    connect(&slider, &QSlider::valueChanged, this, &DragBubble::Follow);
    Follow(slider.sliderPosition());
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange) close();
    return false;
  }

 private:
  void Follow(int position) {
    setText(QString::number(position));
    adjustSize();
    const QPoint handle = slider_.mapTo(parentWidget(), slider_.HandleRect().topLeft());
    const int middle = handle.x() + slider_.HandleRect().width() / 2;
    move(std::clamp(middle - width() / 2, 0, std::max(0, parentWidget()->width() - width())),
         std::max(0, handle.y() - height() - kGap));
    raise();
    show();
  }

  const CSliderCtrl& slider_;
};

}  // namespace

void AttachDragBubble(CSliderCtrl& slider) {
  const auto show = [&slider, bubble = QPointer<QWidget>()](bool goesOn) mutable {
    if (!goesOn) return;
    // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new): Qt ends without memory
    if (bubble == nullptr || !bubble->isVisible()) bubble = new DragBubble(slider);
  };
  QObject::connect(&slider, &CSliderCtrl::Scrolling, &slider, show);
}

}  // namespace AdvancedControl
