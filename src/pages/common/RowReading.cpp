// How a page of rows is read, and what a person sees of it meanwhile and afterwards.

#include <algorithm>
#include <utility>

#include <QLabel>
#include <QTimer>

#include "pages/common/PageVeil.h"
#include "pages/common/RowDialog.h"
#include "pages/common/StatusLine.h"
#include "pages/common/WaitWatch.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"

namespace {

bool IsRead(const PageRow& row) {
  return !std::holds_alternative<ActionRow>(row) && !std::holds_alternative<ResetRow>(row) &&
         !std::holds_alternative<PopUpRow>(row);
}

}  // namespace

RowDialog::~RowDialog() = default;

RowDialog::Reading::Reading(RowDialog& page) : page_(page) {
  if (page_.readings_++ > 0) return;
  page_.sentBefore_ = page_.projector->Sent().commands;
  page_.MarkUnread();
}

RowDialog::Reading::~Reading() {
  if (--page_.readings_ > 0) return;
  if (page_.projector->IsAbandoned()) {
    page_.MarkUnread();
    return;
  }
  for (std::size_t i = 0; i < page_.bound_.size(); ++i) {
    page_.bound_[i].unread = false;
    // What stands beside a list may have followed it.
    if (page_.bound_[i].note != Note::None) page_.GreyRowCaption(i);
  }
  page_.UpdateVeil();
}

void RowDialog::MarkUnread() {
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    bound_[i].unread = bound_[i].present && IsRead(table_.rows[i]);
  }
  if (veil_ != nullptr) UpdateVeil();
}

// What can be asked for together from row `first` on: all up to the question for a source that is
// not known yet, which decides what follows.
std::vector<PjtCommand> RowDialog::ReadsFrom(std::size_t first, OfSource known,
                                             Source source) const {
  std::vector<PjtCommand> commands;
  for (std::size_t i = first; i < bound_.size(); ++i) {
    if (!bound_[i].present) continue;
    const PageRow& row = table_.rows[i];
    const OfSource of = SourceOf(row);
    if (of != OfSource::None && of != known) {
      for (const Call& call : SourceQuestions(of)) commands.push_back(call.Command());
      break;
    }
    const auto call = ReadingOf(row, Model());
    if (!call || (of != OfSource::None && !source)) continue;
    commands.push_back((of == OfSource::None ? *call : At(*call, *source)).Command());
  }
  return commands;
}

void RowDialog::Refresh() {
  const Busy busy(this);
  const Reading reading(*this);
  projector->Announce(ReadsFrom(0, OfSource::None, {}));
  OfSource asked = OfSource::None;
  Source source;
  CPjtInterface::Tally before;
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (!bound_[i].present) continue;
    const OfSource of = SourceOf(table_.rows[i]);
    if (of != OfSource::None && std::exchange(asked, of) != of) {
      before = projector->Sent();
      source = AskFor(of);
      if (projector->IsAbandoned()) return;
      ShowSource(source);
      projector->Announce(ReadsFrom(i, of, source));
    }
    if (of == OfSource::None || source) {
      RefreshRow(i, of == OfSource::None ? 0 : source);
    } else {
      RefreshRow(i, source, before);  // why the source is unknown is why the row is
    }
    if (projector->IsAbandoned()) return;
  }
  for (const PageRow& row : table_.rows) {
    if (const int list = ListBeside(row); list != 0) Preselect(list);
  }
}

void RowDialog::RefreshRow(std::size_t index, Source source) {
  RefreshRow(index, source, projector->Sent());
}

void RowDialog::RefreshRow(std::size_t index, Source source, const CPjtInterface::Tally& before) {
  Bound& bound = bound_[index];
  std::visit([&](const auto& row) { Refresh(row, bound, source); }, table_.rows[index]);
  if (projector->IsAbandoned()) return;
  bound.unread = false;
  if (IsRead(table_.rows[index])) Tell(index, NoteOf(index, before));
  const bool told = bound.note == Note::None || bound.note == Note::Range;
  if (!bound.opened && source && told && ReadingOf(table_.rows[index], Model())) {
    bound.opened = ShownPosition(index);
  }
  if (veil_ != nullptr) UpdateVeil();
}

RowDialog::Note RowDialog::NoteOf(std::size_t index, const CPjtInterface::Tally& before) const {
  const PageRow& row = table_.rows[index];
  const auto* value = std::get_if<ValueRow>(&row);
  const QWidget* control = GetDlgItem(value != nullptr ? value->ids.minus : ControlOf(row));
  const auto* list = qobject_cast<const CComboBox*>(control);
  if (list != nullptr && list->count() == 0) return Note::NoEntries;
  const CPjtInterface::Tally after = projector->Sent();
  if (after.unanswered > before.unanswered) return Note::Unanswered;
  if (after.notOffered > before.notOffered) return Note::NotOffered;
  if (after.refused > before.refused || !control->isEnabledTo(this)) return Note::Refused;
  return value != nullptr ? Note::Range : Note::None;
}

QString RowDialog::NoteText(const PageRow& row, const Bound& bound) const {
  switch (bound.note) {
    case Note::Refused:
      return ListString(ListText::ReadRefused);
    case Note::NotOffered:
      return ListString(ListText::NotOffered);
    case Note::Unanswered:
      return ListString(ListText::ReadUnanswered);
    case Note::NoEntries:
      return ListString(ListText::NoEntries);
    case Note::Range: {
      const Range range = EnteredRange(std::get<ValueRow>(row), bound);
      if (range.minimum <= kUnbounded.minimum || range.minimum >= range.maximum) return {};
      return CatalogString(kListCategory, ListText::RangeNote, std::int64_t{range.minimum},
                           std::int64_t{range.maximum});
    }
    case Note::None:
      break;
  }
  return {};
}

void RowDialog::Tell(std::size_t index, Note note) {
  Bound& bound = bound_[index];
  if (bound.note == note) return;
  bound.note = note;
  const PageRow& row = table_.rows[index];
  const QString text = NoteText(row, bound);
  for (const int id : ControlsOf(row)) GetDlgItem(id)->setToolTip(text);
  // A text that is only shown is described by its caption.
  if (qobject_cast<QLabel*>(GetDlgItem(ControlOf(row))) != nullptr) return;
  for (const int id : ControlsOf(row)) GetDlgItem(id)->setAccessibleDescription(text);
  GreyRowCaption(index);
}

void RowDialog::GreyRowCaption(std::size_t index) {
  if (!table_.captionsStay) GreyCaption(ControlOf(table_.rows[index]));
}

QString RowDialog::WaitingText() const {
  if (readings_ == 0) return ListString(ListText::Waiting);
  const int next = projector->Sent().commands - sentBefore_ + 1;
  auto total = static_cast<int>(Reads().size());
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    total += bound_[i].present && SourceOf(table_.rows[i]) != OfSource::None;
  }
  return CatalogString(kListCategory, ListText::Reading, std::int64_t{next},
                       std::int64_t{std::max(next, total)});
}

void RowDialog::AddStatusLine() {
  delete status_;
  status_ = new StatusLine(this);
  PlaceBesideClose(*status_);
  connect(status_, &StatusLine::Retry, this, [this] {
    projector->TryAfresh();
    Refresh();
  });
}

void RowDialog::ShowWaiting(bool waiting) {
  waiting_ = waiting;
  if (status_ != nullptr) status_->ShowProgress(waiting ? WaitingText() : QString());
  UpdateVeil();
}

void RowDialog::UpdateVeil() {
  QRegion unread;
  QRect rows;
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (!bound_[i].present) continue;
    const QRect row = RowRect(ControlOf(table_.rows[i]));
    rows = rows.united(row);
    if (bound_[i].unread) unread += row;
  }
  // A read that was broken off stays dimmed.
  if (!waiting_ && (unread.isEmpty() || readings_ > 0 || veil_ == nullptr)) {
    delete veil_;
    return;
  }
  // Beside the rows, so that it scrolls with them.
  if (veil_ == nullptr) {
    veil_ = new PageVeil(*GetDlgItem(ControlOf(table_.rows.front()))->parentWidget());
  }
  veil_->Cover(isWindow() ? rows : rect(), unread);
}

void RowDialog::OnBusy() {
  if (watch_ == nullptr) {
    watch_ = std::make_unique<WaitWatch>([this] { return projector->IsWaiting(); },
                                         [this](bool waiting) { ShowWaiting(waiting); });
  }
  sentWhenIdle_ = projector->Sent();
  watch_->Start();
}

void RowDialog::OnIdle() {
  watch_->Stop();
  if (status_ != nullptr && !IsLeft() && projector->Sent().commands > sentWhenIdle_.commands) {
    status_->ShowOutcome(*projector, sentWhenIdle_);
  }
  if (!std::exchange(stale_, false) || IsLeft()) return;
  QTimer::singleShot(0, this, [this] {
    if (IsCreated()) Refresh();
  });
}
