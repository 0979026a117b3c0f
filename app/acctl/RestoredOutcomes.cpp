#include "app/acctl/RestoredOutcomes.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>

#include <QJsonArray>

#include "app/acctl/Aliases.h"
#include "app/acctl/Message.h"
#include "app/profiles/Table.h"

namespace {

struct OutcomeList {
  Outcome outcome;
  const char* member;   ///< Of the JSON.
  const char* text;     ///< In the summary, after the number; null if it is not counted there.
  const char* problem;  ///< For each setting, or once for all if it is no error; may be null.
  const char* code;     ///< Of the problem.
  int exitCode;
};

constexpr std::array<OutcomeList, 12> kLists{{
    {Outcome::Changed, "changed", QT_TRANSLATE_N_NOOP("Acctl", "%n changed"), nullptr, nullptr,
     ExitCode::Done},
    {Outcome::Differs, "different", QT_TRANSLATE_N_NOOP("Acctl", "%n different"), nullptr, nullptr,
     ExitCode::Done},
    {Outcome::AlreadySo, "alreadySo", QT_TRANSLATE_N_NOOP("Acctl", "%n already so"), nullptr,
     nullptr, ExitCode::Done},
    {Outcome::Pending, "pending", QT_TRANSLATE_N_NOOP("Acctl", "%n not yet so"),
     QT_TRANSLATE_NOOP("Acctl", "accepted, but not so yet"), ProblemCode::Pending, ExitCode::Done},
    {Outcome::Refused, "refused", QT_TRANSLATE_N_NOOP("Acctl", "%n refused"), nullptr,
     ProblemCode::Refused, ExitCode::Refused},
    {Outcome::Busy, "busy", QT_TRANSLATE_N_NOOP("Acctl", "%n busy"),
     QT_TRANSLATE_NOOP("Acctl", "the projector is busy or in standby"), ProblemCode::Busy,
     ExitCode::Refused},
    {Outcome::Unconfirmed, "unconfirmed", QT_TRANSLATE_N_NOOP("Acctl", "%n unconfirmed"),
     QT_TRANSLATE_NOOP("Acctl", "not confirmed, it may have changed"), ProblemCode::Unconfirmed,
     ExitCode::Refused},
    {Outcome::NotReached, "notDone", QT_TRANSLATE_N_NOOP("Acctl", "%n not done"), nullptr,
     ProblemCode::Stopped, ExitCode::Done},
    {Outcome::Unknown, "skipped", nullptr,
     QT_TRANSLATE_NOOP("Acctl", "skipped, this model does not have it"), ProblemCode::NoSuchSetting,
     ExitCode::Done},
    {Outcome::NotOffered, "skipped", nullptr,
     QT_TRANSLATE_NOOP("Acctl", "skipped, this projector does not offer it"),
     ProblemCode::NotOffered, ExitCode::Done},
    {Outcome::NotSettable, "skipped", nullptr,
     QT_TRANSLATE_NOOP("Acctl", "skipped, it cannot be restored"), ProblemCode::NotPossible,
     ExitCode::Done},
    {Outcome::NotAllowed, "skipped", nullptr,
     QT_TRANSLATE_NOOP("Acctl", "skipped, this model does not take it"), ProblemCode::OutOfRange,
     ExitCode::Done},
}};

const OutcomeList& ListOf(Outcome outcome) {
  return *std::ranges::find(kLists, outcome, &OutcomeList::outcome);
}

}  // namespace

// Reports every setting, except those of `beforehand` that already had their value, and those that
// have it because `beforehand` set it: these would be reported twice.
RestoredOutcomes::RestoredOutcomes(const Work& work, const Target& target,
                                   const Restoration& restoration)
    : work_(work), target_(target), restoration_(restoration) {
  for (const RestoredSetting& restored : restoration.Beforehand()) {
    if (restored.outcome != Outcome::AlreadySo) settings_.push_back(Judge(restored));
  }
  const std::vector beforehand = settings_;
  for (const RestoredSetting& restored : restoration.Settings()) {
    const bool isReported =
        restored.outcome == Outcome::AlreadySo &&
        std::ranges::any_of(beforehand, [&](const ReportedSetting& earlier) {
          return earlier.outcome == Outcome::Changed && earlier.restored->saved == restored.saved;
        });
    if (!isReported) settings_.push_back(Judge(restored));
  }
}

/// Whether a setting was interrupted while it was stepped.
bool RestoredOutcomes::IsStopped(const RestoredSetting& restored) const {
  const bool isStepped = restored.setting != nullptr && restored.setting->IsStepped();
  if (restored.outcome != Outcome::Refused || !isStepped || !work_.isInterrupted()) return false;
  const auto isLater = [&](const RestoredSetting& other) { return other.turn > restored.turn; };
  return restored.now && std::ranges::none_of(restoration_.Beforehand(), isLater) &&
         std::ranges::none_of(restoration_.Settings(), isLater);
}

ReportedSetting RestoredOutcomes::Judge(const RestoredSetting& restored) const {
  const auto isNow = [&] { return work_.texts.Shown().Value(*restored.setting, *restored.now); };
  if (IsStopped(restored)) {
    return {&restored, Outcome::NotReached, ProblemCode::Stopped,
            Message(Acctl::tr("stopped at %1"), isNow())};
  }
  const bool lacksEntries = restored.setting != nullptr && target_.LacksEntries(*restored.setting);
  if (restored.outcome == Outcome::NotSettable && lacksEntries) {
    return {&restored, Outcome::NotReached, ProblemCode::InputsUnknown, InputsNotRead(),
            ExitCode::NoAnswer};
  }
  if (restored.outcome == Outcome::NotOffered && !target_.Carries(kSaved, *restored.setting)) {
    return {&restored, Outcome::NotOffered, ProblemCode::NotInProtocol, NotInPjLink()};
  }
  if (Sends() && restored.outcome == Outcome::Differs && restored.setting->IsStepped() &&
      std::abs(*restored.before - restored.saved.value) > kMostSteps) {
    return {&restored, Outcome::NotReached, ProblemCode::OutOfRange,
            Message(Acctl::tr("not sent, it is more than %n steps away", nullptr, kMostSteps)),
            ExitCode::Refused};
  }
  if (restored.outcome == Outcome::Refused) {
    const std::string reason = restored.now ? Message(Acctl::tr("refused, it is %1"), isNow())
                                            : Message(Acctl::tr("it cannot be read now"));
    return {&restored, Outcome::Refused,
            restored.now ? ProblemCode::Refused : ProblemCode::NotReadable, reason,
            ExitCode::Refused};
  }
  return {&restored, restored.outcome};
}

bool RestoredOutcomes::Sends() const {
  return work_.arguments.command != Command::Diff && !work_.arguments.dryRun;
}

int RestoredOutcomes::Count(Outcome outcome) const {
  return static_cast<int>(std::ranges::count(settings_, outcome, &ReportedSetting::outcome));
}

std::string RestoredOutcomes::Summary() const {
  std::string text;
  int skipped = 0;
  const auto add = [&text](int count, const char* what) {
    if (count > 0) text += (text.empty() ? "" : ", ") + Message(Acctl::tr(what, nullptr, count));
  };
  for (const OutcomeList& list : kLists) {
    if (list.text == nullptr) {
      skipped += Count(list.outcome);
    } else {
      const bool isLeft = list.outcome == Outcome::NotReached && !Sends();
      add(Count(list.outcome),
          isLeft ? QT_TRANSLATE_N_NOOP("Acctl", "%n not compared") : list.text);
    }
  }
  add(skipped, QT_TRANSLATE_N_NOOP("Acctl", "%n skipped"));
  return text.empty() ? Message(Acctl::tr("nothing to do")) : text;
}

QJsonObject RestoredOutcomes::Describe(const ReportedSetting& reported) const {
  const RestoredSetting& restored = *reported.restored;
  QJsonObject json{{"key", Wide(restored.saved.key)}, {"saved", restored.saved.value}};
  if (restored.saved.source) json["source"] = *restored.saved.source;
  if (restored.isBeforehand) json["beforehand"] = true;
  if (const auto alias = AliasOf(restored.saved.key); !alias.empty()) json["alias"] = Wide(alias);
  const auto add = [&](const QString& name, int value) {
    json[name] = value;
    if (restored.setting == nullptr) return;
    json[name + "Code"] = Wide(work_.texts.Code(*restored.setting, value));
    json[name + "Text"] = Wide(work_.texts.Shown().Value(*restored.setting, value));
  };
  add("saved", restored.saved.value);
  if (restored.setting != nullptr) {
    json["caption"] = Wide(work_.texts.Shown().Caption(*restored.setting));
  }
  if (restored.before) add("before", *restored.before);
  if (restored.now) add("now", *restored.now);
  return json;
}

/// The key, with the name of the input source if the setting belongs to one.
std::string RestoredOutcomes::NameOf(const SavedSetting& saved) const {
  if (!saved.source) return saved.key;
  return saved.key + " (" + work_.texts.Shown().Source(target_.settings, *saved.source) + ')';
}

void RestoredOutcomes::PutInto(Report& report) const {
  std::map<QString, QJsonArray> lists;
  std::array<std::string, kLists.size()> keys;
  int notInPjLink = 0;
  for (const OutcomeList& list : kLists) lists[list.member];
  for (const ReportedSetting& reported : settings_) {
    const SavedSetting& saved = reported.restored->saved;
    const OutcomeList& list = ListOf(reported.outcome);
    QJsonObject json = Describe(reported);
    if (!reported.reason.empty()) {
      json["reason"] = Wide(reported.reason);
    } else if (list.problem != nullptr) {
      json["reason"] = Acctl::tr(list.problem);
    }
    lists[list.member].append(json);
    if (reported.outcome == Outcome::NotOffered && !reported.reason.empty()) {
      ++notInPjLink;
    } else if (!reported.reason.empty()) {
      report.Add({reported.code, reported.reason, saved.key, NameOf(saved), reported.exitCode});
    } else if (list.problem != nullptr && list.exitCode != ExitCode::Done) {
      report.Add(
          {list.code, Message(Acctl::tr(list.problem)), saved.key, NameOf(saved), list.exitCode});
    } else if (list.problem != nullptr) {
      std::string& same = keys[static_cast<std::size_t>(&list - kLists.data())];
      same += (same.empty() ? "" : ", ") + NameOf(saved);
    }
  }
  for (std::size_t i = 0; i < kLists.size(); ++i) {
    if (keys[i].empty()) continue;
    report.Add({.code = kLists[i].code,
                .text = Message(Acctl::tr("%1: %2"), Acctl::tr(kLists[i].problem), keys[i]),
                .exitCode = kLists[i].exitCode});
  }
  if (notInPjLink > 0) {
    report.Add(
        {.code = ProblemCode::NotInProtocol,
         .text = Message(Acctl::tr("skipped, PJLink does not have them: %n of the file's settings",
                                   nullptr, notInPjLink)),
         .exitCode = ExitCode::Done});
  }
  for (const auto& [member, list] : lists) report.json[member] = list;
}

std::string RestoredOutcomes::Differences() const {
  Table table;
  for (const ReportedSetting& reported : settings_) {
    const RestoredSetting& restored = *reported.restored;
    const bool isCompared =
        reported.outcome == Outcome::Differs || reported.outcome == Outcome::Changed;
    // What is restored beforehand is compared only while it is restored.
    const bool isLeft =
        restored.isBeforehand && reported.outcome == Outcome::NotReached && !Sends();
    if (restored.setting == nullptr || !(isLeft || (isCompared && restored.before))) continue;
    const ModelSetting& setting = *restored.setting;
    const auto text = [&](int value) { return work_.texts.Shown().Value(setting, value); };
    table.Add({NameOf(restored.saved), work_.texts.Shown().Caption(setting),
               restored.before ? text(*restored.before) : "?", "->", text(restored.saved.value)});
  }
  return table.Text();
}
