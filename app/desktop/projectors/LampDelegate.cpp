#include "app/desktop/projectors/LampDelegate.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>

#include "app/desktop/projectors/ProjectorTableModel.h"

namespace {

constexpr double kMuch = 0.9;
constexpr int kMargin = 3;
constexpr int kBarHeight = 3;

}  // namespace

QColor LampDelegate::Color(double share) {
  if (share >= 1) return {0xD0, 0x36, 0x30};
  return share >= kMuch ? QColor(0xE0, 0x9A, 0x10) : QColor(0x2E, 0x9E, 0x4F);
}

void LampDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  FocusedRows::paint(painter, option, index);
  bool isKnown = false;
  const double share = index.data(ProjectorTableModel::kShareRole).toDouble(&isKnown);
  if (!isKnown) return;
  QRect bar = option.rect.adjusted(kMargin, 0, -kMargin, -1);
  bar.setTop(bar.bottom() - kBarHeight + 1);
  if (IsStrong(option)) {
    painter->fillRect(bar.adjusted(-1, -1, 1, 1), option.palette.color(QPalette::HighlightedText));
  } else {
    QColor ground = option.palette.color(QPalette::Text);
    ground.setAlphaF(0.15F);
    painter->fillRect(bar, ground);
  }
  QRect full = bar;
  full.setWidth(static_cast<int>(bar.width() * std::clamp(share, 0.0, 1.0)));
  if (option.direction == Qt::RightToLeft) full.moveRight(bar.right());
  painter->fillRect(full, Color(share));
}
