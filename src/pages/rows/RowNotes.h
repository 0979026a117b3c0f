#pragma once

#include <QPointer>
#include <QString>

#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "pages/common/PageRows.h"

namespace AdvancedControl {

class RowHost;
class RowMarks;
class RowView;

/// Notes about the rows of a page: why a row could not be read or cannot be used, which numbers it
/// takes, what the projector refused, and the wanted value. A note is shown in the tool tips of the
/// row's controls, given to screen readers, and may grey the caption; refused rows and rows that
/// differ from the wanted value are also marked. User-interface thread only.
class RowNotes {
 public:
  /// `host` and `rows`, all rows of the page, must outlive the notes. With `captionsStay`, captions
  /// are never greyed.
  RowNotes(RowHost& host, const PageRows::Views& rows, bool captionsStay)
      : host_(host), rows_(rows), captionsStay_(captionsStay) {}

  ~RowNotes();
  RowNotes(const RowNotes&) = delete;
  RowNotes& operator=(const RowNotes&) = delete;

  /// What there is to say about a row, for the user: a text in each line.
  static QString TextOf(const RowView& row);

  /// Sets the note of a row that was just read; `before` is the tally from before the reading.
  void SetNote(RowView& row, const CPjtInterface::Tally& before);
  /// Shows the texts and marks of a row as they are now.
  void Show(const RowView& row);
  /// Removes the marks, because the dialog has made new controls.
  void Clear();
  /// Greys a row's caption if its controls are disabled.
  void GreyCaption(const RowView& row) const;

 private:
  void ShowMarks(const RowView& changed);

  RowHost& host_;
  const PageRows::Views& rows_;
  bool captionsStay_;
  QPointer<RowMarks> marks_;  // made when a row is marked for the first time
};

}  // namespace AdvancedControl
