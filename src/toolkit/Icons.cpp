#include "toolkit/Icons.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include "toolkit/PaintedIcon.h"

namespace AdvancedControl {

namespace {

struct Design {
  const char* theme;  ///< Name in the theme; empty if ours is always used.
  QColor color;       ///< Of the disc behind a sign; invalid for a line drawing.
  char sign;          ///< On the disc.
};

Design DesignOf(IconName name) {
  switch (name) {  // unreachable: there is a case for each
    case IconName::Refresh:
      return {"view-refresh", {}, 0};
    case IconName::Information:
      return {"dialog-information", {0x2f, 0x6f, 0xc4}, 'i'};
    case IconName::Stop:
      return {"dialog-error", {0xc4, 0x2b, 0x2b}, 'x'};
    case IconName::Reset:
      break;
  }
  return {"", {}, 0};
}

// Three quarters of a circle with an arrow head at its end, in a square of side 1. Runs clockwise.
void DrawTurn(QPainter& painter, const QColor& color) {
  const QRectF circle(0.2, 0.2, 0.6, 0.6);
  painter.setPen(QPen(color, 0.1, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(circle, 45 * 16, 270 * 16);
  const QPointF end(0.5 + 0.3 * 0.7071, 0.5 - 0.3 * 0.7071);
  const QPointF head[] = {end + QPointF(0.12, 0.12), end + QPointF(0.12, -0.2),
                          end + QPointF(-0.2, 0.12)};
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPolygon(head, 3);
}

void DrawSign(QPainter& painter, const Design& design) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(design.color);
  painter.drawEllipse(QRectF(0.04, 0.04, 0.92, 0.92));
  painter.setPen(QPen(Qt::white, 0.1, Qt::SolidLine, Qt::RoundCap));
  if (design.sign == 'i') {
    painter.drawPoint(QPointF(0.5, 0.28));
    painter.drawLine(QPointF(0.5, 0.46), QPointF(0.5, 0.73));
  } else {
    painter.drawLine(QPointF(0.34, 0.34), QPointF(0.66, 0.66));
    painter.drawLine(QPointF(0.66, 0.34), QPointF(0.34, 0.66));
  }
}

class DrawnIcon final : public PaintedIcon {
 public:
  explicit DrawnIcon(IconName name) : name_(name) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const Design design = DesignOf(name_);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const int side = std::min(rect.width(), rect.height());
    painter->translate(QRectF(rect).center() - QPointF(side, side) / 2);
    painter->scale(side, side);
    if (design.color.isValid()) {
      DrawSign(*painter, design);
    } else {
      if (name_ == IconName::Reset) {  // runs counter-clockwise
        painter->translate(1, 0);
        painter->scale(-1, 1);
      }
      DrawTurn(*painter, TextColor(mode));
    }
    painter->restore();
  }

  QIconEngine* clone() const override { return new DrawnIcon(name_); }

 private:
  IconName name_;
};

}  // namespace

QIcon ThemedIcon(IconName name) {
  const QString theme = QString::fromLatin1(DesignOf(name).theme);
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): owned by the icon
  const QIcon own(new DrawnIcon(name));
  return theme.isEmpty() || !QIcon::hasThemeIcon(theme) ? own : QIcon::fromTheme(theme);
}

QSize IconSize(const QWidget& beside) {
  const int usual = beside.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &beside);
  const int side = std::max(usual, beside.fontMetrics().ascent());
  return {side, side};
}

void RemoveForeignButtonIcons(QWidget& dialog) {
  if (QIcon::hasThemeIcon(QStringLiteral("dialog-ok"))) return;
  for (const auto* box : dialog.findChildren<QDialogButtonBox*>()) {
    for (QAbstractButton* button : box->buttons()) {
      if (box->standardButton(button) != QDialogButtonBox::NoButton) button->setIcon({});
    }
  }
}

}  // namespace AdvancedControl
