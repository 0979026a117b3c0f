#include "toolkit/LineLabel.h"

#include <QEvent>

namespace AdvancedControl {

QSize LineLabel::sizeHint() const {
  if (measured_.isValid() && text() == measuredText_) return measured_;
  measuredText_ = text();
  const bool asQLabel = measuredText_.isEmpty() || measuredText_.contains(QLatin1Char('&'));
  measured_ = asQLabel ? QLabel::sizeHint() : fontMetrics().size(0, measuredText_);
  return measured_;
}

void LineLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    measured_ = {};
  }
  QLabel::changeEvent(event);
}

}  // namespace AdvancedControl
