#include "pages/rows/RowView.h"

#include "settings/RowUse.h"

namespace AdvancedControl {

std::vector<int> RowView::Controls() const { return {ControlOf(row_)}; }

QString RowView::Text() const {
  const auto position = Position();
  return position ? TextAt(*position) : QString();
}

bool RowView::IsUsable() const {
  return Dialog().GetDlgItem(ControlOf(row_))->isEnabledTo(&Dialog());
}

std::optional<int> RowView::ReadSetting(Source source) const {
  return source ? ::ReadRow(Projector(), row_, Model(), source) : std::nullopt;
}

}  // namespace AdvancedControl
