#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/acctl/Preflight.h"
#include "app/acctl/Uses.h"
#include "app/acctl/ValueCodes.h"

/// One condition on a setting of a projector, such as "lamp-hours>1500".
struct Condition {
  enum class Comparison { Equal, Unequal, Less, LessOrEqual, Greater, GreaterOrEqual };

  std::string key;  ///< The key, or its short name.
  Comparison comparison = Comparison::Equal;
  std::string value;
};

struct ConditionList {
  std::vector<Condition> conditions{};
  std::string error{};  ///< One line; empty on success.
};

/// Parses conditions separated by spaces; a value with spaces is put in double quotes. Every key
/// must be one that some model has.
ConditionList ParseConditions(std::string_view text);

/// Finds a condition with a value that no projector has, which may be a mistake. Numbers, states
/// except the power, and choices whose entries are not known may have any value.
class PossibleValues {
 public:
  /// Both must outlive this object.
  PossibleValues(const std::vector<Condition>& conditions, const ValueTexts& texts)
      : conditions_(conditions),
        texts_(texts),
        isPossible_(conditions.size()),
        values_(conditions.size()) {}

  /// Takes the values of one more projector into account.
  void Add(const ModelSettings& model);
  /// The error for the first such condition; empty if there is none.
  std::string Error() const;

 private:
  const std::vector<Condition>& conditions_;
  const ValueTexts& texts_;
  std::vector<bool> isPossible_;
  std::vector<std::string> values_;  ///< For the error; empty if no projector has the setting.
};

/// The error for a condition with a value that none of the projectors' models has, before they are
/// asked.
std::string ImpossibleValue(const std::vector<Condition>& conditions, const ValueTexts& texts,
                            const Projectors& projectors, ModelCache& models);

/// Whether a setting with this device value meets the condition.
bool IsMet(const Condition& condition, const ValueTexts& texts, const ModelSetting& setting,
           int value, std::optional<PowerState> power);

/// Reads the settings that the conditions name, and returns whether all conditions are met. They
/// are not if the model lacks a setting. A projector that does not answer, or does not report the
/// inputs that a condition names, is added to the report as a problem.
bool MeetsAll(const std::vector<Condition>& conditions, const ValueTexts& texts,
              ProjectorAccess& projector, Report& report);
