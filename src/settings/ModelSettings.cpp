#include "settings/ModelSettings.h"

#include <algorithm>
#include <string>
#include <utility>

#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace {

constexpr auto kSwitch = Numbered(ListText::SwitchOff, ListText::SwitchOn);

bool AddressesSource(const std::optional<Call>& call) {
  if (!call) return false;
  switch (FamilyOf(call->operation)) {
    case OperationFamily::SourceSetter:
    case OperationFamily::ShortSourceSetter:
      return true;
    default:
      return false;
  }
}

void Describe(const ListRow& row, const ModelData& model, ModelSetting& setting) {
  setting.kind = row.send ? ModelSetting::Kind::Choice : ModelSetting::Kind::State;
  setting.entries = row.entries.Of(model);
  setting.changeable = row.send.has_value() && !setting.entries.empty();
  setting.perSource = AddressesSource(row.send);
}

void Describe(const ValueRow& row, const ModelData& model, ModelSetting& setting) {
  setting.kind = ModelSetting::Kind::Number;
  setting.bias = row.bias;
  setting.changeable = true;
  setting.perSource = AddressesSource(row.Setting());
  if (row.ids.slider == 0) return;
  const Range shown = SliderRange(row, model);
  setting.range = Range{shown.minimum + row.bias, shown.maximum + row.bias};
}

void Describe(const CheckRow&, const ModelData&, ModelSetting& setting) {
  setting.kind = ModelSetting::Kind::Choice;
  setting.entries.assign(kSwitch.begin(), kSwitch.end());
  setting.changeable = true;
}

void Describe(const ActionRow& row, const ModelData& model, ModelSetting& setting) {
  setting.kind = ModelSetting::Kind::Action;
  if (row.list != 0) setting.entries = row.entries.Of(model);
}

void Describe(const auto&, const ModelData&, ModelSetting&) {}

template <class Row>
int CaptionOf(const Row& row) {
  if constexpr (requires { row.caption; }) {
    return row.caption;
  } else {
    return 0;
  }
}

/// The operation that resets the row of a control.
std::optional<PjtOperation> ResetOf(const PageTable& table, int control) {
  for (const PageRow& row : table.rows) {
    const auto* resets = std::get_if<ResetRow>(&row);
    if (resets == nullptr) continue;
    const auto entry = std::ranges::find(resets->entries, control, &ResetEntry::of);
    if (entry != resets->entries.end()) return entry->operation;
  }
  return {};
}

/// The pop-ups that a page opens on this model. The user's gamma and colour temperature can only be
/// shaped where the model has them.
std::vector<const PageTable*> PopUpsOf(PageId page, const ModelData& model) {
  std::vector<const PageTable*> tables;
  if (page == PageId::PictureType5 || page == PageId::Pic) {
    const auto has = [](const CountedList& list, auto isCustom) {
      for (int i = 0; i < list.Size(); ++i) {
        if (isCustom(i, list.values[static_cast<std::size_t>(i)])) return true;
      }
      return false;
    };
    const bool byValue = page == PageId::PictureType5;
    if (has(model.GammaList, [byValue](int position, int value) {
          return byValue ? value <= kLastCustomGamma : position <= kLastCustomGammaPosition;
        })) {
      tables.push_back(&kGammaRows);
    }
    if (has(model.ColorTempList, [byValue](int position, int value) {
          return byValue ? value >= kFirstCustomColorTemp : position == kCustomColorTempPosition;
        })) {
      tables.push_back(&kColorTempRows);
    }
  }
  if (page == PageId::Option5) tables.push_back(&kServiceRows);
  return tables;
}

}  // namespace

bool ModelSetting::Allows(int value) const {
  if (kind == Kind::Choice) return PositionOf(entries, value) >= 0;
  return kind == Kind::Number && (!range || (value >= range->minimum && value <= range->maximum));
}

ModelSettings::ModelSettings(ModelData model)
    : model_(std::make_shared<const ModelData>(std::move(model))) {
  Add(kStatusRows, Caption::TabStatus);
  for (const PageTab& tab : TabsOf(model_->DialogType, model_->ModelCode)) {
    Add(TableOf(tab.page), tab.caption);
    for (const PageTable* popUp : PopUpsOf(tab.page, *model_)) Add(*popUp, tab.caption);
  }
}

void ModelSettings::Add(const PageTable& table, int tab) {
  if (KeepsTemplate(table, model_->ModelCode)) return;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const PageRow& row = table.rows[i];
    // A list of resets is part of the settings that it resets.
    if (!Has(table, i, model_->ModelCode) || std::holds_alternative<ResetRow>(row)) continue;
    ModelSetting& setting = settings_.emplace_back();
    setting.key = KeyOf(row);
    setting.tab = tab;
    setting.row = &row;
    setting.reset = ResetOf(table, ControlOf(row));
    setting.readable = ReadingOf(row, *model_).has_value();
    std::visit(
        [&](const auto& kind) {
          setting.caption = CaptionOf(kind);
          Describe(kind, *model_, setting);
        },
        row);
  }
}

const ModelSetting* ModelSettings::Find(std::string_view key) const {
  const auto found = std::ranges::find(settings_, key, &ModelSetting::key);
  return found == settings_.end() ? nullptr : &*found;
}

void ModelSettings::Announce(CPjtInterface& projector,
                             std::span<const ModelSetting* const> settings) const {
  std::vector<PjtCommand> reads;
  for (const ModelSetting* setting : settings) {
    if (const auto call = ReadingOf(*setting->row, *model_)) reads.push_back(call->Command());
  }
  if (projector.Channel()) projector.Channel()->Announce(reads);
}

std::optional<int> ModelSettings::Read(CPjtInterface& projector,
                                       const ModelSetting& setting) const {
  const auto call = ReadingOf(*setting.row, *model_);
  return call ? ::Read(projector, *call) : std::nullopt;
}

bool ModelSettings::Change(CPjtInterface& projector, const ModelSetting& setting, int value,
                           std::string_view text) const {
  const int code = model_->ModelCode;
  if (const auto* list = std::get_if<ListRow>(setting.row)) {
    const int sent = list->rules.sendsPosition ? PositionOf(setting.entries, value) : value;
    if (list->rules.tellsText) projector.SettingText = std::string(text);
    return Perform(projector, *list->send, sent, code).accepted;
  }
  if (const auto* number = std::get_if<ValueRow>(setting.row)) {
    return Perform(projector, number->Setting(), value, code).accepted;
  }
  if (const auto* check = std::get_if<CheckRow>(setting.row)) {
    return Perform(projector, check->send, value, code).accepted;
  }
  return false;
}
