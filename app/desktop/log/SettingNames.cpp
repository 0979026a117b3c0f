#include "app/desktop/log/SettingNames.h"

#include <map>
#include <utility>
#include <variant>
#include <vector>

#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "settings/ModelSettings.h"
#include "simulator/SettingsTable.h"

namespace {

QString Wide(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The simulation's name for the setting of a command; empty if it has none.
QString SimulatedName(const PjtCommand& command) {
  static const auto names = [] {
    std::map<std::pair<PjtOperation, std::uint16_t>, QString> all;
    for (const Setting& setting : SettingsTable()) {
      if (setting.code != 0) all.try_emplace({PjtOperation::Get, setting.code}, Wide(setting.name));
      for (const Binding& binding : setting.operations) {
        if (binding.verb != Verb::None) all.try_emplace({binding.operation, 0}, Wide(setting.name));
      }
    }
    return all;
  }();
  const bool isGeneric = FormOf(command.operation).isGeneric;
  const auto found = names.find({isGeneric ? PjtOperation::Get : command.operation, command.code});
  return found == names.end() ? QString() : found->second;
}

/// A call of a row, and what its value is.
struct Use {
  Call call;
  const ModelSetting* setting = nullptr;
  bool isPosition = false;  ///< The value is a position in the list.

  bool Fits(const PjtCommand& command) const {
    const OperationForm& form = FormOf(command.operation);
    if (form.isGeneric != FormOf(call.operation).isGeneric) return false;
    if (form.isGeneric) return call.code == command.code;
    const bool isAnywhere = form.first != Argument::Address || setting->of != OfSource::None;
    return call.operation == command.operation && (isAnywhere || call.address == command.first);
  }
};

/// Collects the calls of a row.
struct Uses {
  std::vector<Use>& uses;
  const ModelSetting& setting;

  void operator()(const ListRow& row) const {
    Add(row.read);
    Add(row.send, row.rules.sendsPosition);
  }
  void operator()(const ValueRow& row) const {
    for (const Call& call : {row.Reading(), row.Setting(), row.Stepping(false), row.Stepping(true)})
      Add(call);
  }
  void operator()(const CheckRow& row) const {
    Add(row.read);
    Add(row.send);
  }
  void operator()(const StateRow& row) const {
    for (const auto& call : {std::optional(row.read), row.turnOff, row.turnOn}) Add(call);
  }
  void operator()(const ActionRow& row) const { Add(row.call); }
  void operator()(const auto&) const {}

  void Add(const std::optional<Call>& call, bool isPosition = false) const {
    if (call) uses.push_back({*call, &setting, isPosition});
  }
};

}  // namespace

std::optional<int> ValueOf(const PjtCommand& command, const PjtReply& reply) {
  const OperationForm& form = FormOf(command.operation);
  const auto whole = [&form](std::int16_t value) {
    return form.isGeneric ? int{static_cast<std::uint16_t>(value)} : int{value};
  };
  if (form.effect == Effect::Sets)
    return whole(form.first == Argument::Value ? command.first : command.second);
  const bool has = form.returns == Returns::Value && reply.answered && reply.offered &&
                   !reply.busy && IsSuccess(command.operation, reply.result);
  return has ? std::optional(whole(reply.value)) : std::nullopt;
}

class SettingNames::OfModel {
 public:
  explicit OfModel(const ProfileModel& model) : settings_(model.data) {
    for (const ModelSetting& setting : settings_.All()) {
      const Uses uses{uses_, setting};
      std::visit(uses, *setting.row);
      uses.Add(setting.reset);
    }
  }

  // If several rows have the same call, the meaning is that of the first.
  Meaning Of(const PjtCommand& command, const PjtReply& reply, const SettingTexts& texts) {
    const auto use = std::ranges::find_if(uses_, [&](const Use& one) { return one.Fits(command); });
    if (use == uses_.end()) return {.setting = SimulatedName(command)};
    const ModelSetting& setting = *use->setting;
    std::optional<int> source;
    const OperationForm& form = FormOf(command.operation);
    if (form.first == Argument::Address && setting.of != OfSource::None) source = command.first;
    const auto [name, isNew] = names_.try_emplace({&setting, source});
    if (isNew) name->second = Wide(texts.Name(settings_, setting, source));
    Meaning meaning{.setting = name->second};
    auto value = ValueOf(command, reply);
    if (!value || setting.kind == ModelSetting::Kind::Action) return meaning;
    if (form.family == OperationFamily::ChannelStepper) value = *value + setting.bias;
    if (use->isPosition) {
      const auto position = static_cast<std::size_t>(*value);
      if (position >= setting.entries.size()) return meaning;
      value = setting.entries[position].value;
    }
    meaning.value = Wide(texts.Value(setting, *value));
    return meaning;
  }

 private:
  const ModelSettings settings_;
  std::vector<Use> uses_;
  std::map<std::pair<const ModelSetting*, std::optional<int>>, QString> names_;
};

SettingNames::SettingNames() : texts_(CatalogFolders(), SystemLanguageId()) {}

SettingNames::~SettingNames() = default;

SettingNames::Meaning SettingNames::Of(const std::shared_ptr<const ProfileModel>& model,
                                       const PjtCommand& command, const PjtReply& reply) {
  const auto& names = models_.Of(model, [&] { return std::make_unique<OfModel>(*model); });
  return names->Of(command, reply, texts_);
}
