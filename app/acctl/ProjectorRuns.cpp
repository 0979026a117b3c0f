#include "app/acctl/ProjectorRuns.h"

#include <algorithm>
#include <numeric>
#include <unistd.h>
#include <utility>

#include "app/acctl/Commands.h"
#include "app/acctl/Listing.h"
#include "app/acctl/Message.h"
#include "app/acctl/Output.h"
#include "app/acctl/Password.h"
#include "app/acctl/ProfileTables.h"
#include "app/acctl/Signals.h"
#include "app/acctl/Simulated.h"
#include "device/Connect.h"
#include "fleet/JobChannel.h"
#include "fleet/MakeVisit.h"

namespace {

using Action = Report (*)(const Work&, ProjectorAccess&);

Action ActionOf(Command command) {
  switch (command) {
    case Command::Settings:
      return RunSettings;
    case Command::Get:
      return RunGet;
    case Command::Set:
      return RunSet;
    case Command::Reset:
      return RunReset;
    case Command::Status:
      return RunStatus;
    case Command::Save:
      return RunSave;
    case Command::Diff:
      return RunDiff;
    default:
      return RunApply;
  }
}

bool IsChanging(const Arguments& arguments) {
  const Command command = arguments.command;
  return !arguments.dryRun && (command == Command::Set || command == Command::Reset ||
                               command == Command::Apply || command == Command::Undo);
}

/// The projector's address; nothing if it is simulated here.
std::optional<ProjectorAddress> PresentAddress(const FleetProfile& profile, const Work& work,
                                               const std::string& password) {
  if (IsSimulatedHere(profile, work)) return std::nullopt;
  if (IsSimulated(profile, work.arguments)) return ParseAddress(work.served.at(profile.name));
  const std::string& given = work.arguments.connecting.address;
  ProjectorAddress address = given.empty() ? AddressOf(profile) : ParseAddress(given);
  auto* const pjLink = std::get_if<PjLinkAddress>(&address);
  if (pjLink != nullptr && pjLink->password.empty()) pjLink->password = password;
  return address;
}

std::shared_ptr<ProjectorChannel> ChannelTo(const FleetProfile& profile,
                                            const std::optional<ProjectorAddress>& address,
                                            const Work& work) {
  if (address) return MakeJobChannel(*work.loop, *address, work.arguments.connecting.timeOut);
  return std::make_shared<SimulatedProjector>(SimulatedModelOf(profile));
}

void Connect(const Work& work, const FleetProfile& profile,
             const std::optional<ProjectorAddress>& address, OpenProjector& open) {
  const auto timeOut = work.arguments.connecting.timeOut;
  if (open.access) return;
  open.access.emplace(profile, ChannelTo(profile, address, work), timeOut,
                      work.models->Share(profile));
  open.access->AskForInputs(InputsNeededBy(work, TargetOf(*open.access)));
}

int NameWidth(const Projectors& projectors, const Arguments& arguments) {
  int width = 0;
  for (const FleetProfile* profile : projectors) {
    width =
        std::max(width, DisplayWidth(ShownName(profile->name, IsSimulated(*profile, arguments))));
  }
  return width;
}

}  // namespace

std::unique_ptr<OpenProjector> OpenWithoutLock(const Work& work, const FleetProfile& profile,
                                               const std::function<bool()>& goesOn) {
  auto open = std::make_unique<OpenProjector>();
  const auto address = PresentAddress(profile, work, work.password);
  if (address) {
    open->hold.emplace(PlaceOf({.id = {}, .address = *address}), AddressHold::Turn::Last,
                       [&loop = *work.loop] { loop.WakeAll(); });
    if (!open->hold->IsHeld()) work.loop->WakeAll();  // who holds it may be in a pause
    while (!open->hold->IsHeld()) {
      if (!goesOn()) return nullptr;
      JobLoop::Pause(SessionTime::max());
    }
  }
  Connect(work, profile, address, *open);
  return open;
}

ProjectorRuns::ProjectorRuns(const Work& work, Projectors projectors, ModelCache& models)
    : work_(work),
      projectors_(std::move(projectors)),
      models_(models),
      meter_(projectors_.size() > 1 && isatty(STDERR_FILENO) == 1, Count()),
      printer_(work.arguments, NameWidth(projectors_, work.arguments)) {
  AllowFilesFor(std::min(JobsOf(work.arguments), Count()));
}

ProjectorRuns::Attempt ProjectorRuns::Try(int number, const Step& step,
                                          const std::string& password) {
  const Arguments& arguments = work_.arguments;
  const auto address = PresentAddress(Profile(number), work_, password);
  Attempt attempt;
  auto open = open_.Take(number);
  if (!open) open = std::make_unique<OpenProjector>();
  if (!open->hold && address) {
    open->hold.emplace(PlaceOf({.id = {}, .address = *address}));
    // Another entry with this address is kept open. None is worked on at the same time.
    if (!open->hold->IsHeld()) open_.CloseAll();
  }
  if (!open->lock && address && !step.mayBeSilent) {
    open->lock.emplace(*address, arguments.connecting.timeOut, [this] {
      open_.CloseAll();
      return work_.isInterrupted();
    });
  }
  if (open->lock && !open->lock->IsHeld()) {
    attempt.report.Add({.code = ProblemCode::Locked,
                        .text = Message(Acctl::tr("another run of acctl works on it")),
                        .exitCode = ExitCode::NoAnswer});
    return attempt;
  }
  Connect(work_, Profile(number), address, *open);
  ProjectorAccess& projector = *open->access;
  if (projector.Channel().IsGone() && !step.mayBeSilent) {
    attempt.report.Add(NoAnswerOf(projector));
  } else {
    attempt.report = step.action(work_, projector);
  }
  const auto* const pjLink = address ? std::get_if<PjLinkAddress>(&*address) : nullptr;
  attempt.lacksPassword = pjLink != nullptr && pjLink->password.empty() &&
                          projector.Channel().Connection() == ConnectionState::PasswordRequired;
  attempt.mayRepeat = !projector.Channel().HasSentChange();
  if (step.keepsOpen && attempt.report.code == ExitCode::Done) open_.Keep(number, std::move(open));
  return attempt;
}

/// Asks for a password that is missing, if the command is for one projector.
ProjectorRuns::Attempt ProjectorRuns::TryWithPassword(int number, const Step& step) {
  const bool mayAsk = Count() == 1;
  Attempt attempt =
      Try(number, step, mayAsk && !typedPassword_.empty() ? typedPassword_ : work_.password);
  if (!attempt.lacksPassword || !mayAsk) return attempt;
  // The projector has not done anything yet.
  typedPassword_ =
      AskForPassword(Profile(number).name, work_.isInterrupted).value_or(std::string());
  return typedPassword_.empty() ? attempt : Try(number, step, typedPassword_);
}

Report ProjectorRuns::Act(int number, const Step& step) {
  constexpr std::chrono::milliseconds kPause{1000};
  Attempt attempt = TryWithPassword(number, step);
  for (int retry = 0; retry < work_.arguments.connecting.retries; ++retry) {
    const bool isSilent = attempt.report.code == ExitCode::NoAnswer && !attempt.lacksPassword;
    if (!isSilent || !attempt.mayRepeat || work_.isInterrupted()) break;
    JobLoop::Pause(std::chrono::steady_clock::now() + kPause);
    attempt = TryWithPassword(number, step);
  }
  return std::move(attempt.report);
}

std::vector<int> ProjectorRuns::All() const {
  std::vector<int> numbers(projectors_.size());
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

void ProjectorRuns::RunOn(const std::vector<int>& numbers, const ParallelWork& work) {
  std::vector<VisitQueue::Address> addresses;
  for (const int number : numbers) {
    const auto address = PresentAddress(Profile(number), work_, {});
    // Those that are simulated here have no address; each can be worked on.
    addresses.push_back(address ? PlaceOf({.id = {}, .address = *address})
                                : VisitQueue::Address{'#' + std::to_string(number), 0});
  }
  RunParallel(*work_.loop, addresses, JobsOf(work_.arguments), meter_, work);
}

void ProjectorRuns::Add(const Problem& problem) {
  code_ = std::max(code_, problem.exitCode);
  printer_.Add(problem);
}

std::optional<Report> ProjectorRuns::NotBegun() const {
  Report report;
  if (work_.isInterrupted()) {
    report.Add(InterruptionOf());
    return report;
  }
  if (!work_.arguments.failFast || !hasFailed_) return {};
  report.Add({.code = ProblemCode::Stopped,
              .text = Message(Acctl::tr("not begun, as another projector failed"))});
  return report;
}

bool ProjectorRuns::Filter(const std::vector<Condition>& conditions) {
  if (conditions.empty()) return true;
  constexpr const char* kMeets = "meets";
  PossibleValues reported(conditions, work_.texts);
  const Step step{[&](const Work& work, ProjectorAccess& projector) {
                    Report report;
                    report.json[kMeets] = MeetsAll(conditions, work.texts, projector, report);
                    reported.Add(projector.Settings());
                    return report;
                  },
                  true};
  Projectors meeting;
  std::vector<int> numbers;
  RunOn(All(), {[&](int number) {
                  if (auto report = NotBegun()) return std::move(*report);
                  Report report = Act(number, step);
                  if (report.code != ExitCode::Done) hasFailed_ = true;
                  return report;
                },
                [&](int number, Report report) {
                  if (report.json[kMeets].toBool()) {
                    meeting.push_back(&Profile(number));
                    numbers.push_back(number);
                  } else if (report.code != ExitCode::Done) {
                    report.json.remove(kMeets);
                    code_ = std::max(code_, report.code);
                    printer_.Add(Profile(number).name,
                                 IsSimulated(Profile(number), work_.arguments), report);
                  }
                }});
  // It was said already if it did not depend on the inputs that the projectors report.
  const bool isNew = ImpossibleValue(conditions, work_.texts, projectors_, models_).empty();
  if (const std::string note = reported.Error(); isNew && !note.empty()) {
    Complain("--where " + note);
  }
  const bool areAll = meeting.size() == projectors_.size();
  open_.Renumber(numbers);
  projectors_ = std::move(meeting);
  return areAll;
}

Report ProjectorRuns::RunOne(int number, const std::vector<std::optional<Report>>& checked) {
  const Arguments& arguments = work_.arguments;
  if (const auto& report = checked[static_cast<std::size_t>(number)]) {
    if (report->code != ExitCode::Done) hasFailed_ = true;
    return *report;
  }
  if (auto report = NotBegun()) return std::move(*report);
  const bool isListing = arguments.command == Command::Settings;  // asks for inputs at most
  Report report = Act(number, {ActionOf(arguments.command), false, isListing});
  // Nothing was sent to this one, but perhaps to others.
  if (work_.isForSeveral && report.code == ExitCode::WrongUse && IsChanging(arguments)) {
    report.code = ExitCode::Refused;
  }
  if (IsChanging(arguments) && IsSimulatedHere(Profile(number), work_)) {
    report.Add(
        {.code = ProblemCode::Simulated,
         .text = Message(Acctl::tr("simulated by acctl itself, nothing lasting was changed")),
         .exitCode = ExitCode::Done});
  }
  if (report.code != ExitCode::Done) hasFailed_ = true;
  return report;
}

void ProjectorRuns::RunOnAll() {
  const Arguments& arguments = work_.arguments;
  if (Count() == 0) return;
  const auto checked = CheckWords(
      work_, projectors_, models_, [&](const std::vector<int>& numbers, const auto& handOver) {
        const auto numberOf = [&](int turn) { return numbers[static_cast<std::size_t>(turn)]; };
        RunOn(numbers,
              {[&](int turn) {
                 return Act(numberOf(turn), {CheckByAsking, true});
               },
               [&](int turn, Report report) { handOver(numberOf(turn), std::move(report)); }});
      });
  RunOn(All(), {[&](int number) { return RunOne(number, checked); },
                [&](int number, const Report& report) {
                  code_ = std::max(code_, report.code);
                  printer_.Add(Profile(number).name, IsSimulated(Profile(number), arguments),
                               report);
                }});
}

void ProjectorRuns::Run() {
  switch (work_.arguments.command) {
    case Command::List:
      List(work_, projectors_, printer_);
      break;
    case Command::Export:
      Export(projectors_, printer_);
      break;
    default:
      RunOnAll();
  }
}

int ProjectorRuns::Finish() {
  const int signal = ReceivedSignal();
  const bool isPrinted = printer_.Finish();
  if (signal != 0) {
    Complain(Message(Acctl::tr("interrupted; what was done is reported above")));
    return ExitCode::Signalled + signal;
  }
  return isPrinted ? code_ : std::max(code_, ExitCode::Refused);
}
