#include "pages/rows/RowView.h"

#include "pages/common/WantedSettings.h"
#include "pages/rows/RowTexts.h"
#include "settings/RowUse.h"

namespace AdvancedControl {

std::vector<int> RowView::Controls() const { return {ControlOf(row_)}; }

QString RowView::Text() const {
  const auto position = Position();
  return position ? TextAt(*position) : QString();
}

bool RowView::IsUsable() const {
  return Dialog().GetDlgItem(ControlOf(row_))->isEnabledTo(&Dialog());
}

QString RowView::Name() const {
  const QString name = Dialog().GetDlgItem(ControlOf(row_))->accessibleName();
  return name.isEmpty() || CaptionOf(row_) == 0 ? CaptionText(row_) : name;
}

std::optional<int> RowView::Wanted() const {
  const WantedSettings* wanted = Dialog().Context().Wanted();
  const auto value = wanted != nullptr ? wanted->ValueOf(KeyOf(row_), memory.source) : std::nullopt;
  return value ? PositionOfValue(*value) : std::nullopt;
}

bool RowView::Differs() const {
  const auto wanted = memory.isKnown ? Wanted() : std::nullopt;
  return wanted && memory.known != wanted;
}

void RowView::Confirm(std::optional<int> position) {
  const bool isNews = !memory.refusal.isEmpty() || Dialog().Context().Wanted() != nullptr;
  memory.isKnown = true;
  memory.known = position;
  memory.refusal.clear();
  if (isNews) Host().ShowNotes(*this);
}

void RowView::TellRefusal(const QString& tried) {
  if (Projector().IsAbandoned()) return;
  const std::string what = (Name() + QLatin1Char(' ') + tried).trimmed().toStdString();
  memory.refusal = memory.known ? CatalogString(kListCategory, ListText::NotAcceptedHas, what,
                                                TextAt(*memory.known).toStdString())
                                : CatalogString(kListCategory, ListText::NotAccepted, what);
  Host().ShowNotes(*this);
  Dialog().Say(memory.refusal);
}

std::optional<int> RowView::ReadSetting(Source source) const {
  return source ? ::ReadRow(Projector(), row_, Model(), source) : std::nullopt;
}

}  // namespace AdvancedControl
