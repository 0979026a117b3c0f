#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

#include "Namespace.h"
#include "pages/rows/RowView.h"

namespace AdvancedControl {

/// The rows of a page: a view for each line of its table, found by its controls. User-interface
/// thread only.
class PageRows {
 public:
  using Views = std::vector<std::unique_ptr<RowView>>;

  /// `table` and `host` must outlive the rows.
  PageRows(const PageTable& table, RowHost& host);

  /// The views in the table's order.
  const Views& All() const { return views_; }
  /// The row that a control belongs to; null for any other widget.
  RowView* Of(const QWidget* control) const;

  /// Finds the rows' controls; to be called each time the dialog has made new ones.
  void Bind();
  /// Shows the model's rows, sets ranges and fills lists. Does nothing for a model that uses the
  /// template as it is.
  void Prepare();
  /// Refills the lists whose entries for the present model differ from those for `before`.
  void RefillLists(const ModelData& before);
  /// Whether the model has none of the page's settings.
  bool IsEmpty() const;

 private:
  bool KeepsTemplate() const;

  const PageTable& table_;
  RowHost& host_;
  const Views views_;
  std::unordered_map<const QWidget*, RowView*> byControl_;
};

}  // namespace AdvancedControl
