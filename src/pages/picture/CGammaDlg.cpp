#include "pages/picture/CGammaDlg.h"

#include <cmath>

namespace {

constexpr double kLift = 1.0 / 48;  // of a value of 1
constexpr std::size_t kPoints = 8;

double PlaceOf(std::size_t point) {
  return static_cast<double>(point + 1) / static_cast<double>(kPoints + 1);
}

}  // namespace

// Each point raises or lowers the straight line at its position.
std::vector<CurveView::Line> CGammaDlg::LinesOf(const Values& values) const {
  CurveView::Line line{.movable = true};
  for (std::size_t point = 0; point < values.size(); ++point) {
    if (!values[point]) continue;
    line.accepted << QPointF(PlaceOf(point), PlaceOf(point) + *values[point] * kLift);
    line.values.push_back(static_cast<int>(point));
  }
  return {line};
}

int CGammaDlg::ValueAt(std::size_t row, double height) const {
  return static_cast<int>(std::lround((height - PlaceOf(row)) / kLift));
}
