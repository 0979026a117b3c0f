#pragma once

#include <QString>

#include "device/CPjtInterface.h"

class RowHost;
class RowView;

/// What there is to say about the rows of a page: why one could not be read, which numbers it
/// takes. A note is told in the tips of a row's controls, to screen readers, and by a grey caption.
class RowNotes {
 public:
  /// `host` outlives the notes. `captionsStay` keeps captions from greying.
  RowNotes(RowHost& host, bool captionsStay) : host_(host), captionsStay_(captionsStay) {}

  /// A row's present note, as a person reads it.
  static QString TextOf(const RowView& row);

  /// Says what there is to say about a row that was read, by what was sent before that.
  void Tell(RowView& row, const CPjtInterface::Tally& before) const;
  /// Greys a row's caption, or not, as its controls are.
  void GreyCaption(const RowView& row) const;

 private:
  RowHost& host_;
  bool captionsStay_;
};
