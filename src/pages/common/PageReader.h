#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QPointer>

#include "device/CPjtInterface.h"
#include "pages/rows/RowNotes.h"
#include "pages/rows/RowView.h"

class PageVeil;

/// Reads the rows of a page in their order, and shows how far that has come and what came of it:
/// rows that are not read yet are dimmed, and one that cannot be read says why.
class PageReader {
 public:
  using Rows = std::vector<std::unique_ptr<RowView>>;
  using Source = RowView::Source;

  /// The rows of `table`; all three outlive the reader.
  PageReader(const PageTable& table, RowHost& host, const Rows& rows);
  ~PageReader();

  /// The page is read while this lives; one may live in another.
  class Reading {
   public:
    explicit Reading(PageReader& reader);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

   private:
    PageReader& reader_;
  };

  /// The commands that a refresh sends for the rows in their present state, in order. A row that
  /// asks further, by what it has read, is here with its first question.
  std::vector<PjtCommand> Reads() const;

  /// Reads and shows every present row.
  void ReadAll();
  /// Reads and shows one row, of a source that is known.
  void Read(RowView& row, int source);
  /// Asks for the input source that rows belong to; what they remember of another is forgotten.
  Source AskFor(OfSource of);

  /// From now until the next complete reading no value shown is known to be true.
  void MarkUnread();

  /// Dims what is not read yet while the page waits for the projector. Called again, it follows the
  /// reading.
  void ShowWaiting(bool waiting);
  /// What goes on meanwhile, in words: how far the reading has come.
  QString WaitingText() const;

 private:
  CPjtInterface& Projector() const;
  std::vector<PjtCommand> ReadsFrom(std::size_t first, OfSource known, Source source) const;
  void Read(RowView& row, Source source, const CPjtInterface::Tally& before);
  void UpdateVeil();

  RowHost& host_;
  const Rows& rows_;
  RowNotes notes_;
  int readings_ = 0;  // one in another
  int sentBefore_ = 0;
  bool waiting_ = false;
  QPointer<PageVeil> veil_;  // only while it is seen
};
