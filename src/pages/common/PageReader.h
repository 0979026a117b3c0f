#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include <QElapsedTimer>
#include <QPointer>

#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "pages/common/PageRows.h"
#include "pages/rows/RowNotes.h"
#include "pages/rows/RowView.h"

namespace AdvancedControl {

class PageVeil;

/// Reads the rows of a page in order and shows the progress and the results: rows that are not read
/// yet are dimmed, and a row that cannot be read says why. User-interface thread only.
class PageReader {
 public:
  using Rows = PageRows::Views;
  using Source = RowView::Source;

  /// `rows` are those of `table`. All three must outlive the reader.
  PageReader(const PageTable& table, RowHost& host, const Rows& rows);
  ~PageReader();

  /// Marks the page as being read for its lifetime. May be nested.
  class Reading {
   public:
    explicit Reading(PageReader& reader);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

   private:
    PageReader& reader_;
  };

  /// Reads and shows every row that the model has.
  void ReadAll();
  /// Reads and shows one row for a known input source.
  void Read(RowView& row, int source);
  /// Asks for the input source that rows belong to. They forget values remembered for another one.
  Source AskFor(OfSource of);

  /// Marks all values shown as unconfirmed until the next complete reading.
  void MarkUnread();

  /// Dims the rows that are not read yet while the page waits for the projector. Call it again to
  /// update which rows are dimmed.
  void ShowWaiting(bool waiting);
  /// The progress of the reading, as a text for the user.
  QString WaitingText() const;

  /// Forgets the marks and the time of the last reading, because the dialog has made new controls.
  void Restart();

  RowNotes& Notes() { return notes_; }
  /// Shows the notes of all rows anew, because the wanted values have changed.
  void ShowNotes();
  /// Whether a wanted value cannot be compared before the page is read again, because it belongs to
  /// an input source that the last reading did not ask for.
  bool LacksSourceOfWanted() const;
  /// How many rows have another value than the wanted one.
  int Differences() const;
  /// The same for rows that were not read, with the values that the host has last seen.
  int DifferencesWhenSeen() const;
  /// The time since the last reading that was complete and answered; nothing before the first one
  /// since the dialog was created.
  std::optional<std::chrono::milliseconds> SinceRead() const;

 private:
  CPjtInterface& Projector() const;
  std::vector<PjtCommand> ReadsFrom(std::size_t first, OfSource known, Source source) const;
  void Read(RowView& row, Source source, const CPjtInterface::Tally& before);
  void UpdateVeil();

  RowHost& host_;
  const Rows& rows_;
  RowNotes notes_;
  int readings_ = 0;  // number of nested readings
  CPjtInterface::Tally sentBefore_;
  bool waiting_ = false;
  QElapsedTimer sinceRead_;
  QPointer<PageVeil> veil_;  // only while it is shown
};

}  // namespace AdvancedControl
