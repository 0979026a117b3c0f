#include "pages/rows/RowNotes.h"

#include <utility>
#include <vector>

#include <QLabel>
#include <QStringList>

#include "pages/rows/RowMarks.h"
#include "pages/rows/RowOutcomes.h"
#include "pages/rows/RowTexts.h"
#include "pages/rows/RowView.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

namespace {

RowNote NoteOf(const RowView& row, const SettingsDialog& dialog,
               const CPjtInterface::Tally& before) {
  const auto* list = qobject_cast<const CComboBox*>(dialog.GetDlgItem(ControlOf(row.Row())));
  if (list != nullptr && list->count() == 0) return RowNote::NoEntries;
  const CPjtInterface::Tally after = dialog.projector->Sent();
  if (after.unanswered > before.unanswered) return RowNote::Unanswered;
  if (after.notOffered > before.notOffered) return RowNote::NotOffered;
  if (after.refused > before.refused || !row.IsUsable()) return RowNote::Refused;
  const auto* choices = std::get_if<ListRow>(&row.Row());
  if (choices != nullptr && !choices->send) return RowNote::OnlyShown;
  return row.Numbers() ? RowNote::Range : RowNote::None;
}

QString RangeText(const RowView& row) {
  const Range range = row.Numbers().value_or(kUnbounded);
  if (range.minimum <= kUnbounded.minimum || range.minimum >= range.maximum) return {};
  return WithUnit(CatalogString(kListCategory, ListText::RangeNote, std::int64_t{range.minimum},
                                std::int64_t{range.maximum}),
                  row.Row());
}

QString NoteText(const RowView& row) {
  switch (row.memory.note) {  // unreachable: there is a case for each
    case RowNote::Refused:
      return CatalogString(kListCategory, ListText::ReadRefused);
    case RowNote::NotOffered:
      return CatalogString(kListCategory, ListText::NotOffered);
    case RowNote::Unanswered:
      return CatalogString(kListCategory, ListText::ReadUnanswered);
    case RowNote::NoEntries:
      return CatalogString(kListCategory, ListText::NoEntries);
    case RowNote::OnlyShown:
      return CatalogString(kListCategory, ListText::OnlyShown);
    case RowNote::Range:
      return RangeText(row);
    case RowNote::None:
      break;
  }
  return {};
}

}  // namespace

RowNotes::~RowNotes() { Clear(); }

void RowNotes::Clear() { delete marks_; }

QString RowNotes::TextOf(const RowView& row) {
  QStringList texts{row.memory.refusal};
  if (const auto wanted = WantedPosition(row)) {
    texts << CatalogString(kListCategory, ListText::Wanted, row.TextAt(*wanted).toStdString());
  }
  texts << NoteText(row);
  texts.removeAll(QString());
  return texts.join(QLatin1Char('\n'));
}

void RowNotes::SetNote(RowView& row, const CPjtInterface::Tally& before) {
  const RowNote note = NoteOf(row, host_.Dialog(), before);
  if (std::exchange(row.memory.note, note) != note) Show(row);
}

void RowNotes::Show(const RowView& row) {
  const SettingsDialog& dialog = host_.Dialog();
  const QString text = TextOf(row);
  for (const int id : ControlsOf(row.Row())) dialog.GetDlgItem(id)->setToolTip(text);
  ShowMarks(row);
  // A label's accessible description is its caption.
  if (qobject_cast<QLabel*>(dialog.GetDlgItem(ControlOf(row.Row()))) != nullptr) return;
  for (const int id : ControlsOf(row.Row())) dialog.GetDlgItem(id)->setAccessibleDescription(text);
  GreyCaption(row);
}

void RowNotes::ShowMarks(const RowView& changed) {
  if (marks_ == nullptr && changed.memory.refusal.isEmpty() && !Differs(changed)) return;
  std::vector<RowMarks::Mark> marks;
  for (const auto& row : rows_) {
    const RowMarks::Mark mark{.control = ControlOf(row->Row()),
                              .refused = !row->memory.refusal.isEmpty(),
                              .differs = Differs(*row)};
    if (row->memory.present && (mark.refused || mark.differs)) marks.push_back(mark);
  }
  if (marks_ == nullptr) marks_ = new RowMarks(host_.Dialog());
  marks_->Show(std::move(marks));
}

void RowNotes::GreyCaption(const RowView& row) const {
  if (!captionsStay_) host_.Dialog().GreyCaption(ControlOf(row.Row()));
}

}  // namespace AdvancedControl
