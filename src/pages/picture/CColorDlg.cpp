#include "pages/picture/CColorDlg.h"

// A channel's offset moves its line up, its gain changes the slope.
std::vector<CurveView::Line> CColorDlg::LinesOf(const Values& values) const {
  static constexpr double kStep = 1.0 / 128;
  std::vector<CurveView::Line> lines{{.label = QStringLiteral("R"), .hue = 0},
                                     {.label = QStringLiteral("G"), .hue = 120},
                                     {.label = QStringLiteral("B"), .hue = 220}};
  for (std::size_t channel = 0; channel < lines.size(); ++channel) {
    const auto gain = values[channel];
    const auto offset = values[channel + lines.size()];
    if (!gain || !offset) continue;
    const double start = *offset * kStep / 2;
    lines[channel].accepted << QPointF(0, start) << QPointF(1, 1 + start + *gain * kStep);
    lines[channel].values = {static_cast<int>(channel + lines.size()), static_cast<int>(channel)};
  }
  return lines;
}
