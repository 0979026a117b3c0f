#include "app/acctl/CommandTable.h"

#include <algorithm>
#include <limits>

#include "app/acctl/Message.h"

namespace {

constexpr int kMany = std::numeric_limits<int>::max();

// clang-format off
constexpr CommandForm kCommands[] = {
    {Command::List, "list", Words::Projectors, "[P...]", QT_TRANSLATE_NOOP("Acctl", "list projectors"),
     QT_TRANSLATE_NOOP("Acctl",
         "Prints name, model, page set, series code, connection and tags of the projectors, or of all."),
     "acctl list\n"
     "acctl list '@building-3' --brief\n"
     "acctl list -o json",
     0, kMany},
    {Command::Models, "models", Words::Any, "[PATTERN...]", QT_TRANSLATE_NOOP("Acctl", "list models"),
     QT_TRANSLATE_NOOP("Acctl",
         "Prints the models of the profile file, with the number of projectors and of settings of each."),
     "acctl models\n"
     "acctl models 'Model 5-*'",
     0, kMany},
    {Command::Settings, "settings", Words::ProjectorWords, "P [KEY...]",
     QT_TRANSLATE_NOOP("Acctl", "list settings and their values"),
     QT_TRANSLATE_NOOP("Acctl",
         "Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked."),
     "acctl settings 'Lecture hall'\n"
     "acctl settings 'Lecture hall' --for set --brief",
     1, kMany},
    {Command::Explain, "explain", Words::Any, "KEY...", QT_TRANSLATE_NOOP("Acctl", "explain a setting"),
     QT_TRANSLATE_NOOP("Acctl",
         "Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and "
     "whether it can be set, reset, and saved and restored."),
     "acctl explain brightness\n"
     "acctl explain picture.active-iris -o json",
     1, kMany},
    {Command::Get, "get", Words::ProjectorWords, "P [KEY...]", QT_TRANSLATE_NOOP("Acctl", "print present values"),
     QT_TRANSLATE_NOOP("Acctl", "Reads settings from the projectors and prints them; without a key, all of them."),
     "acctl get 'Lecture hall' 'picture.*'\n"
     "acctl get '@building-3' power lamp-hours\n"
     "acctl get 'Lecture hall' brightness -o value",
     1, kMany},
    {Command::Set, "set", Words::ProjectorWords, "P KEY=VALUE... | P KEY VALUE...",
     QT_TRANSLATE_NOOP("Acctl", "change settings"),
     QT_TRANSLATE_NOOP("Acctl",
         "Changes settings in the order given, reads each back, and prints the value before and after. All keys and "
     "values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key "
     "that a projector does not have is reported, and does not stop the others.\n"
     "KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are "
     "steps, and =-3 is a number below zero. 'acctl undo' restores what was there before, except the power "
     "state and the results of actions."),
     "acctl set 'Lecture hall' brightness+=3 active-iris=theater\n"
     "acctl set '@building-3' power=standby --wait 90s\n"
     "acctl set 'Seminar*' input=rgb1 --dry-run",
     1, kMany},
    {Command::Reset, "reset", Words::ProjectorWords, "P KEY...",
     QT_TRANSLATE_NOOP("Acctl", "reset settings to the projector's standard"),
     QT_TRANSLATE_NOOP("Acctl",
         "Resets settings to the projector's own standard and prints what they are then. 'acctl undo' restores what "
     "was there before. Hour counters are reset only by their exact keys, because this cannot be undone."),
     "acctl reset 'Lecture hall' status.lamp-time\n"
     "acctl reset 'Lecture hall' picture.tint",
     2, kMany},
    {Command::Status, "status", Words::Projectors, "[P...]",
     QT_TRANSLATE_NOOP("Acctl", "print power, input, errors and hours"),
     QT_TRANSLATE_NOOP("Acctl", "Prints the status page of the projectors, or of all."),
     "acctl status 'Lecture hall'\n"
     "acctl status '@building-3' -o json",
     0, kMany},
    {Command::Save, "save", Words::Any, "P FILE | P... -o DIR", QT_TRANSLATE_NOOP("Acctl", "save settings in files"),
     QT_TRANSLATE_NOOP("Acctl",
         "Saves every setting that can be restored: those of one projector in FILE ('-' is standard output), or those "
     "of any number in a folder, a file each. A file that is not a file of settings is not replaced without "
     "--force."),
     "acctl save 'Lecture hall' good.json\n"
     "acctl save '@building-3' -o saved",
     1, kMany},
    {Command::Diff, "diff", Words::ProjectorFile, "P FILE|PRESET|DIR",
     QT_TRANSLATE_NOOP("Acctl", "compare with saved settings"),
     QT_TRANSLATE_NOOP("Acctl",
         "Prints what differs from a file ('-' is standard input), from a preset of the host application, or from each "
         "projector's own file in a folder."),
     "acctl diff 'Seminar*' good.json\n"
     "acctl diff '@building-3' saved --exit-code",
     2, 2},
    {Command::Apply, "apply", Words::FileProjectors, "FILE|PRESET P... | DIR [P...]",
     QT_TRANSLATE_NOOP("Acctl", "restore saved settings"),
     QT_TRANSLATE_NOOP("Acctl",
         "Reads the projectors, sends what differs from the file ('-' is standard input), from a preset of the host "
         "application, or from each projector's own file in a folder, and reads it back. What is replaced is kept "
         "first, so that 'acctl undo' can restore it. An interrupted run can be repeated at any time."),
     "acctl apply good.json 'Seminar*' --only 'picture.*' --dry-run\n"
     "acctl apply saved",
     1, kMany},
    {Command::Undo, "undo", Words::Any, "[RUN [P...]]", QT_TRANSLATE_NOOP("Acctl", "undo the last run that changed settings"),
     QT_TRANSLATE_NOOP("Acctl",
         "Restores what a run of 'set', 'reset' or 'apply' replaced. RUN is a name that 'acctl undo --list' prints, a "
     "file, or 'last'; without it, the last run is undone. With P or --where, only these projectors are restored, and "
     "the rest of the run can be undone later. An undo can itself be undone by its name."),
     "acctl undo --list\n"
     "acctl undo last 'Lecture hall' --dry-run\n"
     "acctl undo",
     0, kMany},
    {Command::Watch, "watch", Words::ProjectorWords, "P KEY...",
     QT_TRANSLATE_NOOP("Acctl", "print values and every change"),
     QT_TRANSLATE_NOOP("Acctl",
         "Prints values, and then every change until it is interrupted, until nobody reads its output any more, or "
         "until "
     "all projectors have the value of --until. A projector that falls silent is tried again and again."),
     "acctl watch '@building-3' power -o json\n"
     "acctl watch 'Lecture hall' power --until power=on --wait 2m",
     2, kMany},
    {Command::Find, "find", Words::Any, "[ADDRESSES...]",
     QT_TRANSLATE_NOOP("Acctl", "search the network for projectors"),
     QT_TRANSLATE_NOOP("Acctl",
         "Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, "
     "192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file."),
     "acctl find\n"
     "acctl find 192.0.2.0/24 --add projectors.json",
     0, kMany},
    {Command::Import, "import", Words::File, "CSV", QT_TRANSLATE_NOOP("Acctl", "take projectors from a table"),
     QT_TRANSLATE_NOOP("Acctl",
         "Adds the rows of comma-separated values ('-' is standard input) to the profile file that --profiles or "
     "ACCTL_PROFILES names, and changes those that it has."),
     "acctl --profiles projectors.json import rooms.csv",
     1, 1},
    {Command::Export, "export", Words::Projectors, "[P...]", QT_TRANSLATE_NOOP("Acctl", "print projectors as a table"),
     QT_TRANSLATE_NOOP("Acctl", "Prints the projectors, or all, as comma-separated values, without passwords."),
     "acctl export > rooms.csv",
     0, kMany},
    {Command::Help, "help", Words::Any, "[COMMAND]",
     QT_TRANSLATE_NOOP("Acctl", "explain a command"), "", "acctl help set", 0, 1},
    {Command::Version, "version", Words::None, "", "", "", "", 0, 0},
    {Command::Complete, "complete", Words::Any, "WORD...", "", "", "", 0, kMany},
    {Command::Man, "man", Words::Any, "[COMMAND]", "", "", "", 0, 1},
};
// clang-format on

}  // namespace

std::span<const CommandForm> CommandForms() { return kCommands; }

const CommandForm& FormOf(Command command) {
  return *std::ranges::find(kCommands, command, &CommandForm::command);
}

const CommandForm* FindCommand(std::string_view name) {
  const auto* const found = std::ranges::find(kCommands, name, &CommandForm::name);
  return found != std::end(kCommands) ? found : nullptr;
}

std::string UsageOf(const CommandForm& form) {
  std::string usage = "acctl " + std::string(form.name);
  if (!form.usage.empty()) usage += ' ' + std::string(form.usage);
  return usage;
}
