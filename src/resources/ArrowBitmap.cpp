#include "resources/ArrowBitmap.h"

#include <optional>

#include <QPainter>

#include "toolkit/PaintedIcon.h"

namespace AdvancedControl {

namespace {

// Clockwise rotation, in degrees, that turns the upward arrow into this one.
std::optional<int> Turn(int number) {
  switch (number) {
    case BitmapId::ArrowUp:
      return 0;
    case BitmapId::ArrowRight:
      return 90;
    case BitmapId::ArrowDown:
      return 180;
    case BitmapId::ArrowLeft:
      return 270;
    default:
      return {};
  }
}

class ArrowEngine final : public PaintedIcon {
 public:
  explicit ArrowEngine(int turn) : turn_(turn) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    static constexpr QPointF kUp[] = {{0, -0.3}, {0.4, 0.25}, {-0.4, 0.25}};
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(TextColor(mode));
    painter->translate(QRectF(rect).center());
    painter->rotate(turn_);
    painter->scale(rect.width(), rect.height());
    painter->drawPolygon(kUp, 3);
    painter->restore();
  }

  QIconEngine* clone() const override { return new ArrowEngine(turn_); }

 private:
  int turn_;
};

}  // namespace

QIcon ArrowBitmap(int number) {
  const auto turn = Turn(number);
  return turn ? QIcon(new ArrowEngine(*turn)) : QIcon();
}

}  // namespace AdvancedControl
