#pragma once

#include <optional>

#include "Namespace.h"
#include "settings/Rows.h"

class QAction;
class QWidget;

namespace AdvancedControl {

class RowView;
class SettingsDialog;

/// Whether a page is read again after an action; `done` says whether it succeeded.
constexpr bool ReadsAgain(Rereads rereads, bool done) {
  return rereads == Rereads::Always || (rereads == Rereads::WhenDone && done);
}

/// The page of a row, as the row's view sees it. User-interface thread only.
class RowHost {
 public:
  /// The dialog that has the controls of the rows, the projector and the model.
  virtual SettingsDialog& Dialog() = 0;

  /// The row that a control belongs to; null for any other widget.
  virtual RowView* RowOf(const QWidget* control) const = 0;

  /// Asks for the input source that rows belong to, see `AskSource`. The rows forget values
  /// remembered for another source.
  virtual std::optional<int> AskFor(OfSource of) = 0;
  /// Called before a row that belongs to an input source is read or changed; `source` is nothing if
  /// the source is unknown.
  virtual void ShowSource(std::optional<int> /*source*/) {}
  /// Called after the state that `control` shows was read; `value` is nothing if that failed.
  virtual void ShowState(int /*control*/, std::optional<int> /*value*/) {}

  /// Called when what there is to say about a row has changed: its refusal, or its difference from
  /// the wanted value.
  virtual void ShowNotes(const RowView& row) = 0;
  /// An action of the whole page, for its context menus; null if it has none. Not owned.
  virtual QAction* PageAction() { return nullptr; }

  /// Reads one row as a refresh does.
  virtual void ReadRow(RowView& row, int source) = 0;
  /// Reads the whole page again, after a reset or an action.
  virtual void ReadAgain() = 0;

 protected:
  ~RowHost() = default;
};

}  // namespace AdvancedControl
