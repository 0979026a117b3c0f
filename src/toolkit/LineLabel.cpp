#include "toolkit/LineLabel.h"

#include <QEvent>

namespace AdvancedControl {

namespace {

constexpr int kMarginPart = 6;  // of the font's height

}  // namespace

int LineLabel::MarginOf(const QFontMetrics& metrics) { return metrics.height() / kMarginPart; }

void LineLabel::SetMargin() {
  const int margin = MarginOf(fontMetrics());
  setContentsMargins(margin, margin, margin, margin);
}

QSize LineLabel::sizeHint() const {
  if (measured_.isValid() && text() == measuredText_) return measured_;
  measuredText_ = text();
  const bool asQLabel = measuredText_.isEmpty() || measuredText_.contains(QLatin1Char('&'));
  measured_ = asQLabel ? QLabel::sizeHint()
                       : fontMetrics().size(0, measuredText_).grownBy(contentsMargins());
  return measured_;
}

void LineLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    measured_ = {};
    SetMargin();
  }
  if (event->type() == QEvent::LayoutDirectionChange) AlignToStart(*this);
  QLabel::changeEvent(event);
}

void LineLabel::AlignToStart(QLabel& label) {
  label.setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute |
                     (label.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
}

}  // namespace AdvancedControl
