#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/acctl/Arguments.h"
#include "app/acctl/Message.h"
#include "app/acctl/Report.h"
#include "app/profiles/ProjectorAccess.h"

inline std::string NotReadable() { return Message(Acctl::tr("cannot be read now")); }
inline std::string NotOffered() { return Message(Acctl::tr("this projector does not offer it")); }
inline std::string InputsNotRead() {
  return Message(Acctl::tr("not read, the projector did not report its inputs"));
}
inline std::string NotInPjLink() { return Message(Acctl::tr("PJLink does not have it")); }

struct Use;

/// What is known of a projector without asking it.
struct Target {
  const ModelSettings& settings;
  bool isPjLink = false;

  /// Whether only the projector itself can say which inputs it has.
  bool ReportsInputs() const { return isPjLink && settings.Model().MySourceList.Size() == 0; }
  /// Whether the protocol has what this use of the setting needs.
  bool Carries(const Use& use, const ModelSetting& setting) const;
  /// Whether the protocol can step the setting, but neither read nor set it.
  bool OnlySteps(const ModelSetting& setting) const;
  /// Whether this is a list of inputs that the projector has not reported yet.
  bool LacksEntries(const ModelSetting& setting) const;
};

/// Whether the projector is reached over PJLink, by its profile or by --connect.
bool IsPjLink(const FleetProfile& profile, const Arguments& arguments);
Target TargetOf(const ProjectorAccess& projector);

/// "no answer", with what the connection knows of the reason.
Problem NoAnswerOf(const ProjectorAccess& projector);
/// The command was interrupted before it was done with a projector.
Problem InterruptionOf();
/// Why the last command for a setting failed: `otherwise`, unless the projector did not answer or
/// does not have it.
Problem FailureOf(const ProjectorAccess& projector, Problem otherwise);

/// What a command does with a setting.
struct Use {
  bool (*isPossible)(const ModelSetting&);
  const char* refusal;
  bool (*isInPjLink)(const ModelSetting&, const ModelData&);
  bool (*isForPatterns)(const ModelSetting&) = [](const ModelSetting&) { return true; };
};

/// Whether its value is an input, which has a name if the projector or its profile says it.
bool ShowsInput(const ModelSetting& setting);

/// Whether PJLink has the commands to read, to change and to reset a setting.
bool IsReadOverPjLink(const ModelSetting& setting, const ModelData& model);
bool IsChangedOverPjLink(const ModelSetting& setting, const ModelData& model);
bool IsResetOverPjLink(const ModelSetting& setting, const ModelData& model);
/// Whether PJLink can step it, but neither read nor set it, such as the volume.
bool IsOnlySteppedOverPjLink(const ModelSetting& setting);

inline constexpr Use kListed{[](const ModelSetting&) { return true; }, "",
                             [](const ModelSetting& setting, const ModelData& model) {
                               return IsReadOverPjLink(setting, model) ||
                                      IsChangedOverPjLink(setting, model);
                             }};
inline constexpr Use kRead{[](const ModelSetting& setting) { return setting.readable; },
                           QT_TRANSLATE_NOOP("Acctl", "this cannot be read"), IsReadOverPjLink};
inline constexpr Use kSet{[](const ModelSetting& setting) { return setting.changeable; },
                          QT_TRANSLATE_NOOP("Acctl", "this cannot be set"), IsChangedOverPjLink};
inline constexpr Use kSaved{[](const ModelSetting& setting) { return setting.Restorable(); },
                            QT_TRANSLATE_NOOP("Acctl", "this cannot be restored"),
                            [](const ModelSetting& setting, const ModelData& model) {
                              return IsReadOverPjLink(setting, model) &&
                                     IsChangedOverPjLink(setting, model);
                            }};
// Resetting an hour counter cannot be undone, so no pattern or short name stands for one.
inline constexpr Use kReset{
    [](const ModelSetting& setting) { return setting.reset.has_value(); },
    QT_TRANSLATE_NOOP("Acctl", "this cannot be reset"), IsResetOverPjLink,
    [](const ModelSetting& setting) { return setting.kind != ModelSetting::Kind::State; }};

/// Which settings `get`, `set`, `reset` and `watch` can use; other commands can use all.
const Use& UseBy(Command command);

/// Whether the problem is only that a projector lacks a setting that other projectors have.
bool IsLack(const Problem& problem);
/// The problem with a setting that the model or PJLink does not have. It is wrong usage if the
/// command is for one projector, and an error of this projector if it is for several.
Problem LackOf(std::string_view word, bool isInModel, bool isForSeveral);

/// The settings that the words name and that can be used in this way, in the model's order. A word
/// that names none is a problem of the report.
std::vector<const ModelSetting*> Chosen(const Target& target, const Use& use,
                                        const std::vector<std::string>& words, bool isForSeveral,
                                        Report& report);
