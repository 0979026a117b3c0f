#include "toolkit/DragBubble.h"

#include <algorithm>
#include <utility>

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
  using TextOf = std::function<QString(int)>;

  DragBubble(CSliderCtrl& slider, TextOf textOf)
      : QLabel(slider.window()), slider_(slider), textOf_(std::move(textOf)) {
    setFrameStyle(Box | Plain);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setMargin(kGap / 2);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_DeleteOnClose);
    slider.installEventFilter(this);
    connect(&slider, &CSliderCtrl::Scrolling, this, [this](bool goesOn) {
      if (!goesOn) End();
    });
    connect(&slider, &QObject::destroyed, this, &QWidget::close);
    connect(&slider, &QSlider::valueChanged, this, &DragBubble::Follow);
    Follow(slider.sliderPosition());
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange) End();
    return false;
  }

 private:
  // The slider may still move before the bubble is deleted: to the value after a refusal, while a
  // message box is open.
  void End() {
    slider_.disconnect(this);
    close();
  }

  void Follow(int position) {
    setText(textOf_(position));
    adjustSize();
    const QPoint handle = slider_.mapTo(parentWidget(), slider_.HandleRect().topLeft());
    const int middle = handle.x() + slider_.HandleRect().width() / 2;
    move(std::clamp(middle - width() / 2, 0, std::max(0, parentWidget()->width() - width())),
         std::max(0, handle.y() - height() - kGap));
    show();
  }

  const CSliderCtrl& slider_;
  const TextOf textOf_;
};

}  // namespace

void AttachDragBubble(CSliderCtrl& slider, std::function<QString(int position)> textOf) {
  const auto show = [&slider, textOf = std::move(textOf),
                     bubble = QPointer<QWidget>()](bool goesOn) mutable {
    if (!goesOn) return;
    // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new): Qt ends without memory
    if (bubble == nullptr || !bubble->isVisible()) bubble = new DragBubble(slider, textOf);
  };
  QObject::connect(&slider, &CSliderCtrl::Scrolling, &slider, show);
}

}  // namespace AdvancedControl
