#include "settings/ModelSettings.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>

#include "device/CommandCode.h"
#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"
#include "settings/RowParts.h"

namespace AdvancedControl {

namespace {

// All device values, for a number that only the projector limits.
constexpr Range kDeviceValues{0, 0xFFFF};

void Describe(const ListRow& row, const ModelData& model, ModelSetting& setting) {
  setting.kind = row.send ? ModelSetting::Kind::Choice : ModelSetting::Kind::State;
  setting.entries = row.entries.Of(model);
  setting.changeable = row.send.has_value() && !setting.entries.empty();
  setting.placeholder = row.rules.placeholder.Of(model.ModelCode);
  setting.of = row.of;
}

void Describe(const ValueRow& row, const ModelData& model, ModelSetting& setting) {
  setting.kind = ModelSetting::Kind::Number;
  setting.bias = row.bias;
  setting.changeable = true;
  setting.of = row.of;
  setting.ofCurrentSourceOnly = row.ofCurrentSourceOnly;
  if (row.stepsOnly) return;
  const Range shown = SliderRange(row, model);
  setting.range = Range{shown.minimum + row.bias, shown.maximum + row.bias};
}

void Describe(const CheckRow&, const ModelData&, ModelSetting& setting) {
  setting.kind = ModelSetting::Kind::Choice;
  setting.entries.assign(kSwitch.begin(), kSwitch.end());
  setting.changeable = true;
}

void Describe(const StateRow& row, const ModelData& model, ModelSetting& setting) {
  setting.entries = row.texts.Of(model);
  setting.otherwise = row.otherwise;
  setting.changeable = row.turnOn.has_value();
  if (setting.changeable) setting.entries.emplace(setting.entries.begin(), row.otherwise, 0);
}

void Describe(const ActionRow& row, const ModelData& model, ModelSetting& setting) {
  setting.kind = ModelSetting::Kind::Action;
  if (row.list) setting.entries = row.list->entries.Of(model);
}

void Describe(const auto&, const ModelData&, ModelSetting&) {}

// Resets belong to the settings that they reset, and pop-ups have their own settings.
bool IsSetting(const PageRow& row) {
  return !std::holds_alternative<ResetRow>(row) && !std::holds_alternative<PopUpRow>(row);
}

}  // namespace

std::vector<std::string_view> AllKeys() {
  std::vector<std::string_view> keys;
  const auto add = [&keys](const PageTable& table) {
    for (const PageRow& row : table.rows) {
      if (IsSetting(row)) keys.push_back(KeyOf(row));
    }
  };
  for (std::size_t page = 0; page < kPageCount; ++page) add(TableOf(static_cast<PageId>(page)));
  for (const PageTable* popUp : kPopUpTables) add(*popUp);
  return keys;
}

bool ModelSetting::SelectsInput() const {
  const auto* list = std::get_if<ListRow>(row);
  return list != nullptr && list->send && list->send->code == CommandCode::InputSource;
}

bool ModelSetting::IsPower() const {
  const auto* state = std::get_if<StateRow>(row);
  return state != nullptr && state->read.code == CommandCode::RunningState;
}

bool ModelSetting::IsStepped() const {
  const auto* number = std::get_if<ValueRow>(row);
  return number != nullptr && number->stepsOnly;
}

bool ModelSetting::Allows(int value) const {
  if (kind == Kind::Choice) return value != placeholder && PositionOf(entries, value) >= 0;
  if (kind == Kind::State) return changeable && (value == 0 || value == 1);
  const Range bounds = range.value_or(kDeviceValues);
  return kind == Kind::Number && value >= bounds.minimum && value <= bounds.maximum;
}

ModelSettings::ModelSettings(ModelData model)
    : model_(std::make_shared<const ModelData>(std::move(model))) {
  Add(kStatusRows, Caption::TabStatus);
  const auto tabs = TabsOf(model_->DialogType, model_->ModelCode);
  // Nobody knows the pages of such a model; these settings are those of every projector.
  if (tabs.empty()) Add(kOtherRows, Caption::TabOther);
  for (const PageTab& tab : tabs) {
    Add(TableOf(tab.page), tab.caption);
    for (const PagePopUp& popUp : PopUpsOf(tab.page, *model_)) Add(*popUp.table, tab.caption);
  }
}

void ModelSettings::Add(const PageTable& table, int tab) {
  if (KeepsTemplate(table, model_->ModelCode)) return;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const PageRow& row = table.rows[i];
    if (!IsSetting(row) || !Has(table, i, model_->ModelCode)) continue;
    ModelSetting& setting = settings_.emplace_back();
    setting.key = KeyOf(row);
    setting.tab = tab;
    setting.row = &row;
    setting.reset = ResetOf(table, row);
    setting.readable = ReadingOf(row, *model_).has_value();
    setting.caption = CaptionOf(row);
    std::visit([&](const auto& kind) { Describe(kind, *model_, setting); }, row);
  }
}

const ModelSetting* ModelSettings::Find(std::string_view key) const {
  const auto found = std::ranges::find(settings_, key, &ModelSetting::key);
  return found == settings_.end() ? nullptr : &*found;
}

const ModelSetting& ModelSettings::Input() const {
  return *std::ranges::find_if(settings_, &ModelSetting::SelectsInput);
}

bool ModelSettings::HasSource(const ModelSetting& setting, int source) const {
  if (setting.of == OfSource::None) return false;
  if (source == StandbySource(setting.of, model_->ModelCode)) return true;
  const ModelSetting& input = Input();
  return input.entries.empty() || PositionOf(input.entries, source) >= 0;
}

std::optional<int> ModelSettings::PresentSource(CPjtInterface& projector,
                                                const ModelSetting& setting) const {
  if (setting.of == OfSource::None) return {};
  return AskSource(projector, setting.of, model_->ModelCode);
}

void ModelSettings::Announce(CPjtInterface& projector,
                             std::span<const SourcedSetting> settings) const {
  std::vector<PjtCommand> reads;
  for (const auto& [setting, source] : settings) {
    const auto call = ReadingOf(*setting->row, *model_);
    const bool hasSource = setting->of != OfSource::None;
    if (!call || (hasSource && !source)) continue;
    reads.push_back((hasSource ? At(*call, *source) : *call).Command());
  }
  projector.Announce(reads);
}

std::vector<SourcedSetting> ModelSettings::PrepareReads(
    CPjtInterface& projector, std::span<const ModelSetting* const> settings) const {
  std::map<OfSource, std::optional<int>> sources;
  for (const ModelSetting* setting : settings) sources[setting->of];
  std::vector<PjtCommand> questions;
  for (const auto& [of, source] : sources) {
    for (const Call& question : SourceQuestions(of)) questions.push_back(question.Command());
  }
  if (!questions.empty()) projector.Announce(questions);
  for (auto& [of, source] : sources) {
    if (of != OfSource::None) source = AskSource(projector, of, model_->ModelCode);
  }
  std::vector<SourcedSetting> sourced;
  for (const ModelSetting* setting : settings) sourced.push_back({setting, sources[setting->of]});
  Announce(projector, sourced);
  return sourced;
}

std::optional<int> ModelSettings::Read(CPjtInterface& projector, const ModelSetting& setting,
                                       std::optional<int> source) const {
  return ReadRow(projector, *setting.row, *model_, source);
}

Sent ModelSettings::Change(CPjtInterface& projector, const ModelSetting& setting, int value,
                           const Sending& how) const {
  return SendRow(projector, *setting.row, *model_, value, how);
}

}  // namespace AdvancedControl
