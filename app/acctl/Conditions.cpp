#include "app/acctl/Conditions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "app/acctl/Aliases.h"
#include "app/acctl/Message.h"

namespace {

using Comparison = Condition::Comparison;

// Longer signs first: `<=` begins with `<`.
constexpr std::array<std::pair<std::string_view, Comparison>, 6> kSigns{
    {{"<=", Comparison::LessOrEqual},
     {">=", Comparison::GreaterOrEqual},
     {"!=", Comparison::Unequal},
     {"<", Comparison::Less},
     {">", Comparison::Greater},
     {"=", Comparison::Equal}}};

bool IsKnown(std::string_view key) {
  static const std::vector<std::string_view> keys = AllKeys();
  return std::ranges::find(keys, key) != keys.end() ||
         std::ranges::find(Aliases(), key, &Alias::name) != Aliases().end();
}

std::optional<double> NumberOf(std::string_view text) {
  double number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || stop != text.data() + text.size()) return {};
  return number;
}

bool IsForEquality(const Condition& condition) {
  return condition.comparison == Comparison::Equal || condition.comparison == Comparison::Unequal;
}

bool Compares(Comparison comparison, double left, double right) {
  switch (comparison) {
    case Comparison::Less:
      return left < right;
    case Comparison::LessOrEqual:
      return left <= right;
    case Comparison::Greater:
      return left > right;
    case Comparison::GreaterOrEqual:
      return left >= right;
    default:
      return false;
  }
}

bool IsEqual(const Condition& condition, const ValueTexts& texts, const ModelSetting& setting,
             int value, std::optional<PowerState> power) {
  const std::string code = texts.Code(setting, value, power);
  if (code == condition.value) return true;
  // A value below zero, not a step.
  const bool isBelowZero = condition.value.starts_with('-');
  const auto typed = texts.Parse(setting, isBelowZero ? '=' + condition.value : condition.value);
  if (!typed) return texts.Shown().IsNamed(setting, value, condition.value);  // as others may be
  return !typed->relative && texts.Code(setting, typed->amount) == code;
}

}  // namespace

ConditionList ParseConditions(std::string_view text) {
  ConditionList list;
  const auto fail = [&list](std::string_view part, const QString& why) {
    list.error = "--where '" + std::string(part) + "': " + why.toStdString();
    return list;
  };
  while (true) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    if (text.empty()) return list;
    const auto end = text.find_first_of("<>=! ");
    const std::string_view rest = end == std::string_view::npos ? "" : text.substr(end);
    const auto* const sign = std::ranges::find_if(
        kSigns, [&rest](const auto& known) { return rest.starts_with(known.first); });
    if (sign == kSigns.end()) return fail(text, Acctl::tr("one of = != < <= > >= is missing"));
    Condition condition{std::string(text.substr(0, end)), sign->second, {}};
    std::string_view value = rest.substr(sign->first.size());
    const bool isQuoted = value.starts_with('"');
    if (isQuoted) value.remove_prefix(1);
    const auto stop = value.find(isQuoted ? '"' : ' ');
    condition.value = value.substr(0, stop);
    if (condition.value.empty()) return fail(text, Acctl::tr("a value is missing"));
    if (!IsKnown(condition.key))
      return fail(condition.key, Acctl::tr("no model has such a setting"));
    if (!IsForEquality(condition) && !NumberOf(condition.value)) {
      return fail(condition.key, Acctl::tr("only numbers are less or greater"));
    }
    text = stop == std::string_view::npos ? "" : value.substr(stop + (isQuoted ? 1 : 0));
    list.conditions.push_back(std::move(condition));
  }
}

namespace {

bool HasNamed(const ModelSetting& setting, const ValueTexts& texts, std::string_view name) {
  return std::ranges::any_of(setting.entries, [&](const ListEntry& entry) {
    return texts.Shown().IsNamed(setting, entry.value, name);
  });
}

bool IsPowerCode(std::string_view text) {
  using enum PowerState;
  return std::ranges::any_of(std::array{Standby, WarmingUp, On, CoolingDown},
                             [text](PowerState power) { return CodeOf(power) == text; });
}

}  // namespace

void PossibleValues::Add(const ModelSettings& model) {
  for (std::size_t i = 0; i < conditions_.size(); ++i) {
    const Condition& condition = conditions_[i];
    const ModelSetting* const setting = FindSetting(model, condition.key, kRead.isPossible);
    if (isPossible_[i] || setting == nullptr) continue;
    const bool isListed = setting->kind == ModelSetting::Kind::Choice && !setting->entries.empty();
    isPossible_[i] = NumberOf(condition.value) || (!isListed && !setting->IsPower()) ||
                     texts_.Parse(*setting, condition.value) || IsPowerCode(condition.value) ||
                     HasNamed(*setting, texts_, condition.value);
    values_[i] = texts_.ValuesWithCodes(*setting);
  }
}

std::string PossibleValues::Error() const {
  for (std::size_t i = 0; i < conditions_.size(); ++i) {
    if (isPossible_[i] || values_[i].empty()) continue;
    return conditions_[i].key + ": " +
           Message(Acctl::tr("'%1' is not one of: %2"), conditions_[i].value, values_[i]);
  }
  return {};
}

std::string ImpossibleValue(const std::vector<Condition>& conditions, const ValueTexts& texts,
                            const Projectors& projectors, ModelCache& models) {
  PossibleValues possible(conditions, texts);
  for (const FleetProfile* profile : projectors) possible.Add(models.Of(*profile));
  return possible.Error();
}

bool IsMet(const Condition& condition, const ValueTexts& texts, const ModelSetting& setting,
           int value, std::optional<PowerState> power) {
  if (IsForEquality(condition)) {
    return IsEqual(condition, texts, setting, value, power) ==
           (condition.comparison == Comparison::Equal);
  }
  const auto number = NumberOf(condition.value);
  return number && Compares(condition.comparison, value - setting.bias, *number);
}

bool MeetsAll(const std::vector<Condition>& conditions, const ValueTexts& texts,
              ProjectorAccess& projector, Report& report) {
  std::vector<const ModelSetting*> settings;
  for (const Condition& condition : conditions) {
    const ModelSetting* const setting =
        FindSetting(projector.Settings(), condition.key, kRead.isPossible);
    if (setting == nullptr || !setting->readable) return false;
    settings.push_back(setting);
  }
  const auto reads = projector.Settings().PrepareReads(projector.Connection(), settings);
  for (std::size_t i = 0; i < reads.size(); ++i) {
    const auto& [setting, source] = reads[i];
    const auto value = projector.Settings().Read(projector.Connection(), *setting, source);
    if (!value) {
      if (!projector.Channel().HasAnswered()) report.Add(NoAnswerOf(projector));
      return false;
    }
    const bool isMet =
        IsMet(conditions[i], texts, *setting, *value, projector.Connection().Power());
    // An input whose name is not known may have the one that is compared.
    const bool lacksName = TargetOf(projector).ReportsInputs() && ShowsInput(*setting) &&
                           !NumberOf(conditions[i].value);
    if (lacksName && isMet == (conditions[i].comparison == Comparison::Unequal)) {
      report.Add(
          {ProblemCode::InputsUnknown, InputsNotRead(), conditions[i].key, {}, ExitCode::NoAnswer});
      return false;
    }
    if (!isMet) return false;
  }
  return true;
}
