#include "toolkit/Flash.h"

#include <chrono>

#include <QPainter>
#include <QTimer>
#include <QWidget>

#include "toolkit/FocusPen.h"

namespace AdvancedControl {

namespace {

constexpr std::chrono::milliseconds kDuration{2500};
constexpr int kMargin = 4;
constexpr double kRadius = 4;
constexpr float kOpacity = 0.2F;

class FlashFrame final : public QWidget {
 public:
  FlashFrame(QWidget& parent, const QRect& place) : QWidget(&parent) {
    setObjectName(QStringLiteral("flash"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(place.adjusted(-kMargin, -kMargin / 2, kMargin, kMargin / 2) & parent.rect());
    QTimer::singleShot(kDuration, this, &QObject::deleteLater);
    show();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen = FocusPen(*this);
    QColor fill = pen.color();
    fill.setAlphaF(kOpacity);
    painter.setPen(pen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
  }
};

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-owning-memory): owned by the widget
void Flash(QWidget& widget, const QRect& place) { new FlashFrame(widget, place); }

}  // namespace AdvancedControl
