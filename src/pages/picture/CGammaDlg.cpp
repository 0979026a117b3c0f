#include "pages/picture/CGammaDlg.h"

// Each point raises or lowers the straight line at its position.
std::vector<CurveView::Line> CGammaDlg::LinesOf(const Values& values) const {
  static constexpr double kLift = 1.0 / 48;
  CurveView::Line line;
  for (std::size_t point = 0; point < values.size(); ++point) {
    if (!values[point]) continue;
    const double place = static_cast<double>(point + 1) / static_cast<double>(values.size() + 1);
    line.accepted << QPointF(place, place + *values[point] * kLift);
  }
  return {line};
}
