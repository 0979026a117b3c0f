// The command that saves settings in files.

#include <algorithm>

#include "app/acctl/Commands.h"
#include "app/acctl/Message.h"
#include "app/acctl/Reading.h"
#include "app/acctl/Selection.h"
#include "fleet/WholeFile.h"

namespace {

/// Reports settings that could not be read. Whether the projector is resting, so that this is no
/// error.
bool AddUnread(const Work& work, ProjectorAccess& projector, std::vector<std::string> unread,
               Report& report) {
  const Target target = TargetOf(projector);
  const auto isMeant = [&work](std::string_view key) { return IsLike(key, work.arguments.only); };
  std::erase_if(unread, [&](const std::string& key) {
    return !isMeant(key) || !target.Carries(kSaved, *target.settings.Find(key));
  });
  const ModelSetting& input = target.settings.Input();
  const bool isInputUnread = target.LacksEntries(input) && isMeant(input.key);
  const auto power = unread.empty() && !isInputUnread ? std::nullopt : AskPower(projector);
  const bool rests = IsResting(power);
  if (isInputUnread && rests) unread.emplace_back(input.key);
  ReportUnread(unread, power, Message(Acctl::tr("cannot be read now, and is left out")), report);
  if (isInputUnread && !rests) {
    report.Add({ProblemCode::InputsUnknown,
                InputsNotRead(),
                std::string(input.key),
                {},
                ExitCode::NoAnswer});
  }
  return rests;
}

}  // namespace

Report RunSave(const Work& work, ProjectorAccess& projector) {
  Report report;
  Chosen(TargetOf(projector), kSaved, work.arguments.only, work.isForSeveral, report);
  if (report.code == ExitCode::WrongUse) return report;
  std::vector<std::string> unread;
  const Progress progress = ProgressOf(work, projector);
  Snapshot snapshot = TakeSnapshot(projector.Name(), projector.Settings(), projector.Connection(),
                                   work.texts.Shown(), progress, &unread);
  // An incomplete snapshot would look like a complete one.
  if (!progress.goesOn()) {
    report.Add(projector.Channel().IsGone() ? NoAnswerOf(projector) : InterruptionOf());
    return report;
  }
  std::erase_if(snapshot.settings, [&work](const SavedSetting& setting) {
    return !IsLike(setting.key, work.arguments.only);
  });
  const bool rests = AddUnread(work, projector, std::move(unread), report);
  if (snapshot.settings.empty()) {
    report.Add({.code = ProblemCode::NotReadable,
                .text = Message(Acctl::tr("nothing can be read, and nothing was written")),
                .exitCode = rests ? ExitCode::Done : ExitCode::Refused});
    report.json["saved"] = 0;
    return report;
  }
  const QByteArray bytes = WriteSnapshot(snapshot);
  const std::string& file = work.paths.at(projector.Name());
  if (file == "-") {
    report.text = bytes.toStdString();
    return report;
  }
  if (const QString error = WriteWholeFile(Wide(file), bytes); !error.isEmpty()) {
    report.Add({ProblemCode::File, error.toStdString()});
    return report;
  }
  const auto count = static_cast<int>(snapshot.settings.size());
  report.text = Message(Acctl::tr("%n settings saved in %1", nullptr, count), file) + '\n';
  report.json["file"] = Wide(file);
  report.json["saved"] = count;
  return report;
}
