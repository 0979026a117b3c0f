#include "pages/rows/ActionRowView.h"
#include "pages/rows/CheckRowView.h"
#include "pages/rows/ListRowView.h"
#include "pages/rows/ResetRowView.h"
#include "pages/rows/RowView.h"
#include "pages/rows/StateRowView.h"
#include "pages/rows/ValueRowView.h"

namespace AdvancedControl {

namespace {

/// A button that opens a pop-up; the page handles it.
class PopUpRowView final : public RowView {
 public:
  using RowView::RowView;

  void Bind() override {}
};

template <class View>
std::unique_ptr<RowView> Make(const PageTable& table, const PageRow& row, RowHost& host) {
  return std::make_unique<View>(table, row, host);
}

auto MakerOf(const PageRow& row) {
  if (std::holds_alternative<ListRow>(row)) return Make<ListRowView>;
  if (std::holds_alternative<ValueRow>(row)) return Make<ValueRowView>;
  if (std::holds_alternative<CheckRow>(row)) return Make<CheckRowView>;
  if (std::holds_alternative<StateRow>(row)) return Make<StateRowView>;
  if (std::holds_alternative<ActionRow>(row)) return Make<ActionRowView>;
  if (std::holds_alternative<ResetRow>(row)) return Make<ResetRowView>;
  return Make<PopUpRowView>;
}

}  // namespace

std::vector<std::unique_ptr<RowView>> MakeRowViews(const PageTable& table, RowHost& host) {
  std::vector<std::unique_ptr<RowView>> views;
  views.reserve(table.rows.size());
  for (const PageRow& row : table.rows) views.push_back(MakerOf(row)(table, row, host));
  return views;
}

}  // namespace AdvancedControl
