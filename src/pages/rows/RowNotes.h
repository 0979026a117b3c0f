#pragma once

#include <QString>

#include "Namespace.h"
#include "device/CPjtInterface.h"

namespace AdvancedControl {

class RowHost;
class RowView;

/// Notes about the rows of a page: why a row could not be read, or which numbers it takes. A note
/// is shown in the tool tips of the row's controls, given to screen readers, and may grey the
/// caption. User-interface thread only.
class RowNotes {
 public:
  /// `host` must outlive the notes. With `captionsStay`, captions are never greyed.
  RowNotes(RowHost& host, bool captionsStay) : host_(host), captionsStay_(captionsStay) {}

  /// The text of a row's present note, for the user.
  static QString TextOf(const RowView& row);

  /// Sets the note of a row that was just read; `before` is the tally from before the reading.
  void SetNote(RowView& row, const CPjtInterface::Tally& before) const;
  /// Greys a row's caption if its controls are disabled.
  void GreyCaption(const RowView& row) const;

 private:
  RowHost& host_;
  bool captionsStay_;
};

}  // namespace AdvancedControl
