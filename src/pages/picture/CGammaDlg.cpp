#include "pages/picture/CGammaDlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

CGammaDlg::CGammaDlg(bool hidePointResets, CWnd* parent)
    : CustomDialog(TemplateId::Gamma, kGammaRows, 20336, hidePointResets, parent) {}

std::optional<int> CGammaDlg::Reset(std::size_t point) {
  const int number = static_cast<int>(point) + 1;
  if (projector->ExecUserGammaPReset(number) == 0) return {};
  return projector->GetUserGammaPoint(number);
}

// Each point lifts or lowers the straight line at its place.
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
