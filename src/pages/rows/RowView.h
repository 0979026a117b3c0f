#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QString>

#include "Namespace.h"
#include "pages/common/SettingsDialog.h"
#include "pages/rows/RowHost.h"
#include "pages/rows/RowMemory.h"
#include "toolkit/NotificationMap.h"

namespace AdvancedControl {

/// A control that the user operates, and how it reports that.
struct OperatedControl {
  Notification::Event event;
  int control;
};

/// One row of a page: its widgets, remembered values and behaviour. Each kind of row has a class.
/// User-interface thread only.
///
/// A position is a state that the row's control can be moved to: a shown number, the index of a
/// list's entry, or whether a box is checked.
class RowView {
 public:
  /// The input source that a row is read for; 0 if it belongs to none, nothing if unknown.
  using Source = std::optional<int>;

  /// `row` is one of `table`. All three must outlive the view.
  RowView(const PageTable& table, const PageRow& row, RowHost& host)
      : table_(table), row_(row), host_(host) {}
  virtual ~RowView() = default;

  const PageRow& Row() const { return row_; }
  RowHost& Host() const { return host_; }

  /// All controls by which the page finds the row.
  virtual std::vector<int> Controls() const;
  /// The controls that report to `Act`, and a list beside the row's button.
  virtual std::vector<OperatedControl> OperatedControls() const { return {}; }

  /// Finds the row's controls; called each time the page has made new ones.
  virtual void Bind() = 0;
  /// Sets ranges and fills lists for the model, whether it has the row or not.
  virtual void Prepare() {}
  /// Called instead of `Prepare` to use the template's entries as they are.
  virtual void UseTemplate() {}

  /// Reads the setting and shows it.
  virtual void Read(Source) {}
  /// Called when all rows of the page have been read.
  virtual void OnPageRead() {}
  /// Called when the user has operated this control.
  virtual void Act(int) {}

  /// The position shown; nothing if the row shows none.
  virtual std::optional<int> Position() const { return {}; }
  /// Whether two positions stand for the same value.
  virtual bool AreSame(int position, int other) const { return position == other; }
  /// The text of a position.
  virtual QString TextAt(int position) const { return QString::number(position); }
  /// The text that the row shows.
  virtual QString Text() const;
  virtual bool CanMoveTo(int) const { return false; }
  /// Moves the control as a user would, with the same consequences; only if it `CanMoveTo` there.
  virtual void MoveTo(int) {}
  /// The numbers that can be entered; nothing for a row without numbers.
  virtual std::optional<Range> Numbers() const { return {}; }
  /// Whether its controls are enabled.
  virtual bool IsUsable() const;

  RowMemory memory;

 protected:
  const PageTable& Table() const { return table_; }
  SettingsDialog& Dialog() const { return host_.Dialog(); }
  CPjtInterface& Projector() const { return *Dialog().projector; }
  const ModelData& Model() const { return Dialog().Model(); }
  /// Reads the setting from the projector; nothing if the source is unknown or the read fails.
  std::optional<int> ReadSetting(Source source) const;

 private:
  const PageTable& table_;
  const PageRow& row_;
  RowHost& host_;
};

/// The views of all rows of a table, in its order.
std::vector<std::unique_ptr<RowView>> MakeRowViews(const PageTable& table, RowHost& host);

}  // namespace AdvancedControl
