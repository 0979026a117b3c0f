#include "pages/rows/RowOutcomes.h"

#include "pages/common/WantedSettings.h"
#include "pages/rows/RowTexts.h"
#include "pages/rows/RowView.h"

namespace AdvancedControl {

namespace {

SettingsDialog& DialogOf(const RowView& row) { return row.Host().Dialog(); }

const WantedSettings* WantedOf(const RowView& row) { return DialogOf(row).Context().Wanted(); }

// The position that shows a device value; nothing if the row has none.
std::optional<int> PositionOf(const RowView& row, int value) {
  if (const auto* number = std::get_if<ValueRow>(&row.Row())) return value - number->bias;
  if (std::holds_alternative<CheckRow>(row.Row())) return value != 0 ? 1 : 0;
  const auto* list = std::get_if<ListRow>(&row.Row());
  if (list == nullptr) return {};
  const int position = PositionOf(list->entries.Of(DialogOf(row).Model()), value);
  return position >= 0 ? std::optional(position) : std::nullopt;
}

bool IsOtherThanWanted(const RowView& row, std::optional<int> position) {
  const auto wanted = WantedPosition(row);
  return wanted && !(position && row.AreSame(*position, *wanted));
}

}  // namespace

QString NameOf(const RowView& row) {
  const auto* reset = std::get_if<ResetRow>(&row.Row());
  const QWidget* named =
      DialogOf(row).GetDlgItem(reset != nullptr ? reset->list : ControlOf(row.Row()));
  // The name of a button ends with its own text, which says nothing about the action.
  const bool isAction = std::holds_alternative<ActionRow>(row.Row());
  return isAction || named->accessibleName().isEmpty() ? CaptionText(row.Row())
                                                       : named->accessibleName();
}

void Confirm(RowView& row, std::optional<int> position) {
  const bool isNews = !row.memory.refusal.isEmpty() || WantedPosition(row);
  row.memory.isKnown = true;
  row.memory.known = position;
  row.memory.refusal.clear();
  if (isNews) row.Host().ShowNotes(row);
}

bool IsRefusedSince(const RowView& row, const CPjtInterface::Tally& before) {
  return row.Host().Dialog().projector->Sent().refused > before.refused;
}

void ShowRefusal(RowView& row, const QString& tried) {
  SettingsDialog& dialog = DialogOf(row);
  if (dialog.projector->IsAbandoned()) return;
  const std::string what = (NameOf(row) + QLatin1Char(' ') + tried).trimmed().toStdString();
  const auto known = row.memory.known;
  row.memory.refusal = known ? CatalogString(kListCategory, ListText::NotAcceptedHas, what,
                                             row.TextAt(*known).toStdString())
                             : CatalogString(kListCategory, ListText::NotAccepted, what);
  row.Host().ShowNotes(row);
  dialog.Say(row.memory.refusal);
}

bool ShowsAnother(const RowView& row) {
  return row.memory.isKnown && row.memory.known != row.Position();
}

std::optional<int> WantedPosition(const RowView& row) {
  const WantedSettings* wanted = WantedOf(row);
  if (wanted == nullptr) return {};
  const auto value = wanted->ValueOf(KeyOf(row.Row()), row.memory.source);
  return value ? PositionOf(row, *value) : std::nullopt;
}

bool Differs(const RowView& row) {
  return row.memory.isKnown && IsOtherThanWanted(row, row.memory.known);
}

bool DifferedWhenSeen(const RowView& row) {
  if (row.memory.isKnown) return false;
  const auto seen = DialogOf(row).Context().LastSeen(KeyOf(row.Row()));
  return seen && IsOtherThanWanted(row, PositionOf(row, *seen));
}

}  // namespace AdvancedControl
