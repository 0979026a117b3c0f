#include "settings/Rows.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

const ModelRows* RowsOf(const PageTable& table, int modelCode) {
  const auto found = std::ranges::find_if(table.models, [modelCode](const ModelRows& models) {
    return models.codes.Contains(modelCode);
  });
  return found == table.models.end() ? nullptr : &*found;
}

bool IsOnModel(const ResetRow&, int) { return true; }
bool IsOnModel(const auto& row, int modelCode) { return row.on.Has(modelCode); }

bool IsOn(const PageRow& row, int modelCode) {
  return std::visit([modelCode](const auto& kind) { return IsOnModel(kind, modelCode); }, row);
}

int CaptionIn(const ResetRow&) { return 0; }
int CaptionIn(const auto& row) { return row.caption; }

int ControlIn(const ValueRow& row) { return row.Control(); }
int ControlIn(const auto& row) { return row.control; }

}  // namespace

std::string_view KeyOf(const PageRow& row) {
  return std::visit([](const auto& kind) { return kind.key; }, row);
}

int CaptionOf(const PageRow& row) {
  return std::visit([](const auto& kind) { return CaptionIn(kind); }, row);
}

int ControlOf(const PageRow& row) {
  return std::visit([](const auto& kind) { return ControlIn(kind); }, row);
}

std::vector<int> ControlsOf(const PageRow& row) {
  const auto* value = std::get_if<ValueRow>(&row);
  if (value == nullptr) return {ControlOf(row)};
  const ValueIds& ids = value->ids;
  std::vector<int> controls{ids.minus, ids.plus, ids.field};
  if (!value->stepsOnly) controls.push_back(ids.slider);
  return controls;
}

const PageRow& FindRow(const PageTable& table, int control) {
  return *std::ranges::find(table.rows, control, ControlOf);
}

bool KeepsTemplate(const PageTable& table, int modelCode) {
  return table.unlisted == Unlisted::Template && RowsOf(table, modelCode) == nullptr;
}

bool Has(const PageTable& table, std::size_t row, int modelCode) {
  if (!IsOn(table.rows[row], modelCode)) return false;
  const ModelRows* const own = RowsOf(table, modelCode);
  if (own != nullptr) return own->Has(row);
  return table.unlisted == Unlisted::AllRows || std::holds_alternative<ResetRow>(table.rows[row]);
}

std::optional<Call> ReadingOf(const PageRow& row, const ModelData& model) {
  if (const auto* list = std::get_if<ListRow>(&row)) {
    if (list->rules.emptyIsNotRead && list->entries.Of(model).empty()) return {};
    return list->read;
  }
  if (const auto* value = std::get_if<ValueRow>(&row)) return value->Reading();
  if (const auto* check = std::get_if<CheckRow>(&row)) return check->read;
  if (const auto* state = std::get_if<StateRow>(&row)) return state->read;
  return {};
}

OfSource SourceOf(const PageRow& row) {
  if (const auto* list = std::get_if<ListRow>(&row)) return list->of;
  const auto* value = std::get_if<ValueRow>(&row);
  return value != nullptr ? value->of : OfSource::None;
}

std::optional<Call> ResetOf(const PageTable& table, const PageRow& row) {
  const auto* value = std::get_if<ValueRow>(&row);
  if (value != nullptr && value->reset) return value->reset->call;
  for (const PageRow& other : table.rows) {
    const auto* resets = std::get_if<ResetRow>(&other);
    if (resets == nullptr) continue;
    const auto found = std::ranges::find(resets->entries, ControlOf(row), &ResetEntry::of);
    if (found != resets->entries.end()) return Named(found->operation);
  }
  return {};
}

Range SliderRange(const ValueRow& row, const ModelData& model) {
  const Range fallback = row.range.Of(model.ModelCode);
  if (row.rangeText == kNoRangeText) return fallback;
  return ParseRange(model.RangeTexts[static_cast<std::size_t>(row.rangeText)], row.bias, fallback);
}

Range StepBounds(const ValueRow& row, const ModelData& model) {
  if (row.bounds) return row.bounds->Of(model.ModelCode);
  return row.stepsOnly ? kUnbounded : SliderRange(row, model);
}

}  // namespace AdvancedControl
