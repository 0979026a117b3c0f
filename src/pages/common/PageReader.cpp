#include "pages/common/PageReader.h"

#include <algorithm>
#include <utility>

#include <QRegion>

#include "i18n/LocalizeControlTexts.h"
#include "pages/common/PageVeil.h"
#include "pages/common/WantedSettings.h"
#include "pages/rows/RowOutcomes.h"
#include "settings/CatalogNumbers.h"
#include "settings/RowUse.h"

namespace AdvancedControl {

namespace {

bool ShowsSetting(const RowView& row) {
  return !std::holds_alternative<ActionRow>(row.Row()) &&
         !std::holds_alternative<ResetRow>(row.Row()) &&
         !std::holds_alternative<PopUpRow>(row.Row());
}

// A setting may be kept for each input source although reading it names none.
bool IsOfCurrentSourceOnly(const RowView& row) {
  const auto* value = std::get_if<ValueRow>(&row.Row());
  return value != nullptr && value->ofCurrentSourceOnly;
}

// Only a wanted value needs to know the source of such a setting.
bool WantsSource(const RowView& row) {
  const WantedSettings* wanted = row.Host().Dialog().Context().Wanted();
  return row.memory.present && IsOfCurrentSourceOnly(row) && wanted != nullptr &&
         wanted->Names(KeyOf(row.Row()));
}

void FindSourceOfWanted(RowView& row) {
  const SettingsDialog& dialog = row.Host().Dialog();
  if (IsOfCurrentSourceOnly(row)) row.memory.source.reset();  // it may have changed
  if (!WantsSource(row)) return;
  row.memory.source = AskSource(*dialog.projector, OfSource::Current, dialog.Model().ModelCode);
  row.Host().ShowNotes(row);
}

// How many commands a reading sends if each row that depends on a source sends one.
int CountReads(const PageReader::Rows& rows, const ModelData& model) {
  int count = 0;
  OfSource asked = OfSource::None;
  for (const auto& row : rows) {
    if (!row->memory.present) continue;
    const OfSource of = SourceOf(row->Row());
    if (of != OfSource::None && std::exchange(asked, of) != of) {
      count += static_cast<int>(SourceQuestions(of).size());
    }
    count += of != OfSource::None || ReadingOf(row->Row(), model);
  }
  return count;
}

}  // namespace

PageReader::PageReader(const PageTable& table, RowHost& host, const Rows& rows)
    : host_(host), rows_(rows), notes_(host, rows, table.captionsStay) {}

PageReader::~PageReader() = default;

CPjtInterface& PageReader::Projector() const { return *host_.Dialog().projector; }

PageReader::Reading::Reading(PageReader& reader) : reader_(reader) {
  if (reader_.readings_++ > 0) return;
  reader_.sentBefore_ = reader_.Projector().Sent();
  reader_.MarkUnread();
}

PageReader::Reading::~Reading() {
  if (--reader_.readings_ > 0) return;
  if (reader_.Projector().IsAbandoned()) {
    reader_.MarkUnread();
    return;
  }
  // Controls beside a list may have been enabled or disabled with it.
  for (const auto& row : reader_.rows_) {
    if (row->memory.note != RowNote::None) reader_.notes_.GreyCaption(*row);
  }
  const bool isAnswered = reader_.Projector().Sent().unanswered == reader_.sentBefore_.unanswered;
  if (isAnswered) reader_.sinceRead_.start();
}

void PageReader::Restart() {
  notes_.Clear();
  sinceRead_.invalidate();
}

void PageReader::MarkUnread() {
  for (const auto& row : rows_) row->memory.unread = row->memory.present && ShowsSetting(*row);
  if (veil_ != nullptr) UpdateVeil();
}

// The reads from row `first` on that can be announced together. They end with the question for a
// source that is still unknown, because later reads depend on it.
std::vector<PjtCommand> PageReader::ReadsFrom(std::size_t first, OfSource known,
                                              Source source) const {
  std::vector<PjtCommand> commands;
  for (std::size_t i = first; i < rows_.size(); ++i) {
    if (!rows_[i]->memory.present) continue;
    const PageRow& row = rows_[i]->Row();
    const OfSource of = SourceOf(row);
    if (of != OfSource::None && of != known) {
      for (const Call& call : SourceQuestions(of)) commands.push_back(call.Command());
      break;
    }
    const auto call = ReadingOf(row, host_.Dialog().Model());
    if (!call || (of != OfSource::None && !source)) continue;
    commands.push_back((of == OfSource::None ? *call : At(*call, *source)).Command());
  }
  return commands;
}

void PageReader::ReadAll() {
  const Reading reading(*this);
  CPjtInterface& projector = Projector();
  projector.Announce(ReadsFrom(0, OfSource::None, {}));
  OfSource asked = OfSource::None;
  Source source;
  CPjtInterface::Tally before;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    RowView& row = *rows_[i];
    if (!row.memory.present) continue;
    const OfSource of = SourceOf(row.Row());
    if (of != OfSource::None && std::exchange(asked, of) != of) {
      before = projector.Sent();
      source = AskFor(of);
      if (projector.IsAbandoned()) return;
      host_.ShowSource(source);
      projector.Announce(ReadsFrom(i, of, source));
    }
    if (of == OfSource::None) {
      Read(row, 0);
    } else if (source) {
      Read(row, *source);
    } else {
      Read(row, source,
           before);  // if the source is unknown, the row is unknown for the same reason
    }
    if (projector.IsAbandoned()) return;
  }
  for (const auto& row : rows_) row->OnPageRead();
  for (const auto& row : rows_) FindSourceOfWanted(*row);
}

bool PageReader::LacksSourceOfWanted() const {
  return std::ranges::any_of(rows_, [](const auto& row) {
    return row->memory.isKnown && !row->memory.source && WantsSource(*row);
  });
}

void PageReader::ShowNotes() {
  for (const auto& row : rows_) {
    // A state is never wanted, and its page may have given it a tool tip.
    const bool isState = std::holds_alternative<StateRow>(row->Row());
    if (row->memory.present && !isState) notes_.Show(*row);
  }
}

int PageReader::Differences() const {
  return static_cast<int>(std::ranges::count_if(
      rows_, [](const auto& row) { return row->memory.present && Differs(*row); }));
}

int PageReader::DifferencesWhenSeen() const {
  return static_cast<int>(std::ranges::count_if(
      rows_, [](const auto& row) { return row->memory.present && DifferedWhenSeen(*row); }));
}

std::optional<std::chrono::milliseconds> PageReader::SinceRead() const {
  if (!sinceRead_.isValid()) return {};
  return std::chrono::milliseconds(sinceRead_.elapsed());
}

void PageReader::Read(RowView& row, int source) { Read(row, source, Projector().Sent()); }

void PageReader::Read(RowView& row, Source source, const CPjtInterface::Tally& before) {
  row.Read(source);
  if (Projector().IsAbandoned()) return;
  row.memory.unread = false;
  if (ShowsSetting(row)) {
    notes_.SetNote(row, before);
    const bool isRead = IsRead(row.memory.note);
    const bool isFirst =
        !row.memory.opened && source && ReadingOf(row.Row(), host_.Dialog().Model());
    if (isRead && isFirst) row.memory.opened = row.Position();
    row.memory.isKnown = false;
    if (isRead) {
      Confirm(row, row.Position());
    } else if (WantedPosition(row)) {
      notes_.Show(row);
    }
  } else {
    Confirm(row, {});
  }
  if (veil_ != nullptr) UpdateVeil();
}

PageReader::Source PageReader::AskFor(OfSource of) {
  const auto source = AskSource(Projector(), of, host_.Dialog().Model().ModelCode);
  if (!source || of == OfSource::None) return source;
  for (const auto& row : rows_) {
    if (SourceOf(row->Row()) != of || std::exchange(row->memory.source, source) == source) continue;
    row->memory.opened.reset();
  }
  return source;
}

QString PageReader::WaitingText() const {
  if (readings_ == 0) return CatalogString(kListCategory, ListText::Waiting);
  const int next = Projector().Sent().commands - sentBefore_.commands + 1;
  return CatalogString(kListCategory, ListText::Reading, std::int64_t{next},
                       std::int64_t{std::max(next, CountReads(rows_, host_.Dialog().Model()))});
}

void PageReader::ShowWaiting(bool waiting) {
  waiting_ = waiting;
  UpdateVeil();
}

void PageReader::UpdateVeil() {
  SettingsDialog& dialog = host_.Dialog();
  QRegion unread;
  QRegion open;
  QRect rows;
  for (const auto& row : rows_) {
    if (!row->memory.present) continue;
    const QRect place = dialog.RowRect(ControlOf(row->Row()));
    rows = rows.united(place);
    if (row->memory.unread) unread += place;
    if (row->memory.collects) open += place;
  }
  // Rows whose read was abandoned stay dimmed.
  if (!waiting_ && (unread.isEmpty() || readings_ > 0 || veil_ == nullptr)) {
    delete veil_;
    return;
  }
  // A sibling of the rows, so that it scrolls with them.
  if (veil_ == nullptr) {
    veil_ = new PageVeil(*dialog.GetDlgItem(ControlOf(rows_.front()->Row()))->parentWidget());
  }
  veil_->Cover(dialog.isWindow() ? rows : dialog.rect(), unread, open);
}

}  // namespace AdvancedControl
