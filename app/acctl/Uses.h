#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"
#include "app/profiles/ProjectorAccess.h"

inline constexpr const char* kNotReadable = "cannot be read now";
inline constexpr const char* kNotOffered = "this projector does not offer it";
inline constexpr const char* kInputsNotRead = "not read, the projector did not tell its inputs";
inline constexpr const char* kNotInPjLink = "PJLink does not have it";

/// Whether a name is one of the patterns, or there is none.
bool IsLike(std::string_view name, const std::vector<std::string>& patterns);

struct Use;

/// What is known of a projector without asking it.
struct Target {
  const ModelSettings& settings;
  bool isPjLink = false;

  /// Whether the inputs are only known once the projector has told them.
  bool TellsInputs() const { return isPjLink && settings.Model().MySourceList.Size() == 0; }
  /// Whether the way to it has what a use of the setting needs.
  bool Carries(const Use& use, const ModelSetting& setting) const;
  /// Whether the way to it can step the setting, and neither read nor set it.
  bool OnlySteps(const ModelSetting& setting) const;
  /// Whether this is a list of inputs that are still to be told.
  bool LacksEntries(const ModelSetting& setting) const;
};

/// The profile's way to the projector, unless the command names another.
bool IsPjLink(const ProjectorProfile& profile, const Arguments& arguments);
Target TargetOf(const ProjectorAccess& projector);

/// "no answer", and what the connection knows of the reason.
std::string NoAnswerText(const ProjectorAccess& projector);
/// Why a setting cannot be used now: `refusal`, unless the last command came to something worse.
std::string ReasonOf(const ProjectorAccess& projector, const char* refusal);
void ComplainOf(const ModelSetting& setting, const ProjectorAccess& projector, const char* refusal,
                Report& report);

/// What a command does with a setting.
struct Use {
  bool (*isPossible)(const ModelSetting&);
  const char* refusal;
  bool (*isInPjLink)(const ModelSetting&, const ModelData&);
  bool (*isForPatterns)(const ModelSetting&) = [](const ModelSetting&) { return true; };
};

/// Whether PJLink has the commands to read, to change and to reset a setting.
bool IsReadOverPjLink(const ModelSetting& setting, const ModelData& model);
bool IsChangedOverPjLink(const ModelSetting& setting, const ModelData& model);
bool IsResetOverPjLink(const ModelSetting& setting, const ModelData& model);
/// Whether PJLink can step it, and neither read nor set it, as the volume.
bool IsOnlySteppedOverPjLink(const ModelSetting& setting);

inline constexpr Use kTold{[](const ModelSetting&) { return true; }, "",
                           [](const ModelSetting& setting, const ModelData& model) {
                             return IsReadOverPjLink(setting, model) ||
                                    IsChangedOverPjLink(setting, model);
                           }};
inline constexpr Use kRead{[](const ModelSetting& setting) { return setting.readable; },
                           "this cannot be read", IsReadOverPjLink};
inline constexpr Use kSet{[](const ModelSetting& setting) { return setting.changeable; },
                          "this cannot be set", IsChangedOverPjLink};
inline constexpr Use kKept{
    [](const ModelSetting& setting) { return setting.Restorable(); }, "this is not one to put back",
    [](const ModelSetting& setting, const ModelData& model) {
      return IsReadOverPjLink(setting, model) && IsChangedOverPjLink(setting, model);
    }};
// Resetting an hour counter cannot be undone, so no pattern matches one.
inline constexpr Use kReset{
    [](const ModelSetting& setting) { return setting.reset.has_value(); }, "this cannot be reset",
    IsResetOverPjLink,
    [](const ModelSetting& setting) { return setting.kind != ModelSetting::Kind::State; }};

/// What `get`, `set`, `reset` and `watch` can use; for any other command everything.
const Use& UseBy(Arguments::Command command);

/// The settings that the words name and that can be used so, in the model's order; a word that
/// names none is complained of.
std::vector<const ModelSetting*> Chosen(const Target& target, const Use& use,
                                        const std::vector<std::string>& words, Report& report);
