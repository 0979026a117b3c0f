#pragma once

#include <optional>

#include "settings/Rows.h"

class QWidget;
class RowView;
class SettingsDialog;

/// Whether a page is read again after an action that ended so.
constexpr bool ReadsAgain(Rereads rereads, bool done) {
  return rereads == Rereads::Always || (rereads == Rereads::WhenDone && done);
}

/// What a row asks of the page that it stands on.
class RowHost {
 public:
  /// Holds the controls of the page's rows, the projector and the model.
  virtual SettingsDialog& Dialog() = 0;

  /// The row that a control belongs to; null for any other widget.
  virtual RowView* RowOf(const QWidget* control) const = 0;

  /// Asks for the input source that rows belong to, as `AskSource`. What they remember of another
  /// source is forgotten.
  virtual std::optional<int> AskFor(OfSource of) = 0;
  /// A row of an input source is read, or is about to be changed: `source` is its source, or
  /// nothing while that is unknown.
  virtual void ShowSource(std::optional<int> source) = 0;
  /// A state of the projector was read; nothing where that failed.
  virtual void ShowState(std::optional<int> value) = 0;

  /// Reads one row as a refresh does.
  virtual void ReadRow(RowView& row, int source) = 0;
  /// A reset or an action asks for the whole page to be read again.
  virtual void ReadAgain() = 0;

 protected:
  ~RowHost() = default;
};
