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

/// The error for a condition with a value that none of the projectors' models has; empty if there
/// is none. Numbers, states except the power, and choices that only a projector knows may have any
/// value.
std::string ImpossibleValue(const std::vector<Condition>& conditions, const ValueTexts& texts,
                            const Projectors& projectors, ModelCache& models);

/// Whether a setting with this device value meets the condition.
bool IsMet(const Condition& condition, const ValueTexts& texts, const ModelSetting& setting,
           int value, std::optional<PowerState> power);

/// Reads the settings that the conditions name, and returns whether all conditions are met. They
/// are not if the model lacks a setting. A projector that does not answer is added to the report as
/// a problem.
bool MeetsAll(const std::vector<Condition>& conditions, const ValueTexts& texts,
              ProjectorAccess& projector, Report& report);
