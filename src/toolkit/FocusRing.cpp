#include "toolkit/FocusRing.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTabBar>

#include "toolkit/CSliderCtrl.h"
#include "toolkit/FocusPen.h"

namespace AdvancedControl {

namespace {

constexpr int kGap = 1;  // between the control and the ring
constexpr double kRadius = 4;

}  // namespace

FocusRing::FocusRing(QWidget& window) : QWidget(&window), window_(window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
}

void FocusRing::Follow(QWidget* control) {
  if (control_ != nullptr) control_->removeEventFilter(this);
  const bool wanted = control != nullptr && control->window() == &window_ && control != &window_ &&
                      (control->focusPolicy() & Qt::TabFocus) != 0 && ShowsFocus(*control) &&
                      qobject_cast<CSliderCtrl*>(control) == nullptr;
  control_ = wanted ? control : nullptr;
  if (!wanted) return hide();
  control->installEventFilter(this);
  if (auto* tabs = qobject_cast<QTabBar*>(control)) {
    connect(tabs, &QTabBar::currentChanged, this, &FocusRing::Place, Qt::UniqueConnection);
  }
  setParent(control->parentWidget());
  Place();
  raise();
  show();
}

void FocusRing::Place() {
  if (control_ == nullptr) return;
  QRect around = control_->geometry();
  if (const auto* tabs = qobject_cast<const QTabBar*>(control_.data())) {
    const int inside = 2 * (kFocusWidth + kGap);
    around = tabs->tabRect(tabs->currentIndex())
                 .translated(around.topLeft())
                 .adjusted(inside, inside, -inside, -inside);
  }
  const int margin = kFocusWidth + kGap;
  setGeometry(around.adjusted(-margin, -margin, margin, margin));
}

bool FocusRing::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      Place();
      break;
    case QEvent::Hide:
    case QEvent::EnabledChange:  // unreachable: Qt takes the focus away before it
      Follow(nullptr);
      break;
    default:
      break;
  }
  return false;
}

void FocusRing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(FocusPen(*this));
  const double half = kFocusWidth / 2.0;
  painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), kRadius, kRadius);
}

}  // namespace AdvancedControl
