#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QString>

#include "pages/common/SettingsDialog.h"
#include "pages/rows/RowHost.h"
#include "pages/rows/RowMemory.h"
#include "toolkit/NotificationMap.h"

/// One row of a page: its widgets, what it remembers, and what it does. There is a class for each
/// kind of row.
///
/// A position is what a row's control can be moved to: a number shown, the place of a list's entry,
/// or whether a box is checked.
class RowView {
 public:
  /// The input source that a row is read for; 0 where it belongs to none, nothing while unknown.
  using Source = std::optional<int>;

  /// A control that the user operates, and how it reports that.
  struct Operated {
    Notification::Event event;
    int control;
  };

  /// A row of `table`; all three outlive the view.
  RowView(const PageTable& table, const PageRow& row, RowHost& host)
      : table_(table), row_(row), host_(host) {}
  virtual ~RowView() = default;

  const PageRow& Row() const { return row_; }

  /// All controls of the row that its page finds it by.
  virtual std::vector<int> Controls() const;
  /// Those of them that report to `Act`, and the lists beside its button.
  virtual std::vector<Operated> OperatedControls() const { return {}; }

  /// Finds the row's controls, which the page has made anew.
  virtual void Bind() = 0;
  /// Sets ranges and fills lists for the model, whether it has the row or not.
  virtual void Prepare() {}
  /// Takes the template's entries as they are, instead.
  virtual void UseTemplate() {}

  /// Reads its setting and shows that.
  virtual void Read(Source) {}
  /// All rows of the page have been read.
  virtual void OnPageRead() {}
  /// The user has operated this control.
  virtual void Act(int) {}

  /// What it shows; nothing where that is no position.
  virtual std::optional<int> Position() const { return {}; }
  /// A position as it is shown.
  virtual QString TextAt(int position) const { return QString::number(position); }
  /// What it shows, as a text.
  virtual QString Text() const;
  virtual bool CanMoveTo(int) const { return false; }
  /// Moves as under a hand, so that all that follows is the same; nothing where it cannot.
  virtual void MoveTo(int) {}
  /// The numbers that can be entered; nothing for a row that shows none.
  virtual std::optional<Range> Numbers() const { return {}; }
  /// Whether its controls are in use.
  virtual bool IsUsable() const;

  RowMemory memory;

 protected:
  RowHost& Host() const { return host_; }
  const PageTable& Table() const { return table_; }
  SettingsDialog& Dialog() const { return host_.Dialog(); }
  CPjtInterface& Projector() const { return *Dialog().projector; }
  const ModelData& Model() const { return Dialog().Model(); }
  /// The setting as the projector has it; nothing where the source or the setting is unknown.
  std::optional<int> ReadSetting(Source source) const;

 private:
  const PageTable& table_;
  const PageRow& row_;
  RowHost& host_;
};

/// The views of all rows of a table, in its order.
std::vector<std::unique_ptr<RowView>> MakeRowViews(const PageTable& table, RowHost& host);
