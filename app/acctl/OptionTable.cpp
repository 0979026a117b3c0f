#include "app/acctl/OptionTable.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "app/acctl/Message.h"
#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

constexpr std::array<std::pair<std::string_view, Format>, 5> kFormats{{{"text", Format::Text},
                                                                       {"json", Format::Json},
                                                                       {"jsonl", Format::JsonLines},
                                                                       {"tsv", Format::Tsv},
                                                                       {"value", Format::Value}}};

template <class Number>
bool TakeNumber(std::string_view text, Number least, Number most, Number& number) {
  Number taken{};
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), taken);
  if (error != std::errc() || stop != text.data() + text.size()) return false;
  number = taken;
  return taken >= least && taken <= most;
}

/// A time such as "2", "0.5", "90s", "5m" or "1h".
bool TakeTime(std::string_view text, double most, std::chrono::milliseconds& time) {
  double unit = 1;
  if (!text.empty() && std::string_view("smh").find(text.back()) != std::string_view::npos) {
    unit = text.back() == 'h' ? 3600 : text.back() == 'm' ? 60 : 1;
    text.remove_suffix(1);
  }
  double seconds = 0;
  if (!TakeNumber(text, 0.01 / unit, most / unit, seconds)) return false;
  time = std::chrono::milliseconds(static_cast<std::int64_t>(seconds * unit * 1000));
  return true;
}

bool TakeTimeOut(std::string_view text, std::chrono::milliseconds& time) {
  return TakeTime(text, 3600, time);
}

bool TakeWait(std::string_view text, std::optional<std::chrono::milliseconds>& wait) {
  constexpr double kWeek = 7.0 * 24 * 3600;
  return TakeTime(text, kWeek, wait.emplace());
}

bool TakeText(const std::string& text, std::string& taken) {
  taken = text;
  return !text.empty();
}

bool TakeUse(const std::string& text, Command& command) {
  const CommandForm* const form = FindCommand(text);
  if (form == nullptr) return false;
  command = form->command;
  return command == Command::Get || command == Command::Set || command == Command::Reset ||
         command == Command::Watch;
}

bool TakeFormat(const std::string& text, Format& format) {
  const auto* const found =
      std::ranges::find(kFormats, text, [](const auto& known) { return known.first; });
  if (found == kFormats.end()) return false;
  format = found->second;
  return true;
}

bool TakeLanguage(const std::string& text, std::optional<std::uint32_t>& language) {
  language = FindLanguage(CatalogLanguages(CatalogFolders()), text);
  return language.has_value();
}

std::vector<Command> With(std::vector<Command> commands, const std::vector<Command>& others) {
  commands.insert(commands.end(), others.begin(), others.end());
  return commands;
}

const std::vector<Command> kRecorded{Command::Set, Command::Reset, Command::Apply, Command::Undo};
const std::vector<Command> kConnecting{
    Command::Settings, Command::Get,  Command::Set,   Command::Reset, Command::Status,
    Command::Save,     Command::Diff, Command::Apply, Command::Undo,  Command::Watch};
// What prints profiles asks the projectors only for --where.
const std::vector<Command> kAsking = With(kConnecting, {Command::List, Command::Export});
const std::vector<Command> kAskingOrSearching = With(kAsking, {Command::Find});
// One that watches has a thread for each projector, and tries it until it answers.
const std::vector<Command> kTrying{Command::List,  Command::Settings, Command::Get,   Command::Set,
                                   Command::Reset, Command::Status,   Command::Save,  Command::Diff,
                                   Command::Apply, Command::Undo,     Command::Export};

std::vector<OptionForm> MakeOptions() {
  using A = Arguments;
  using Text = const std::string&;
  return {
      {.name = "profiles",
       .value = "FILE",
       .help = QT_TRANSLATE_NOOP("Acctl", "read the projectors from FILE"),
       .take = [](A& a, Text text) { return TakeText(text, a.profiles); },
       .isDefault = true},
      {.name = "where",
       .value = "CONDITIONS",
       .help = QT_TRANSLATE_NOOP(
           "Acctl", "only projectors in this state, such as 'power=on lamp-hours>1500'"),
       .take = [](A& a, Text text) { return TakeText(text, a.where); },
       .of = kAsking},
      {.name = "connect",
       .value = "ADDRESS",
       .help = QT_TRANSLATE_NOOP("Acctl", "the projector is at ADDRESS; P gives only its model"),
       .take = [](A& a, Text text) { return TakeText(text, a.connecting.address); },
       .of = kConnecting},
      {.name = "port",
       .value = "N",
       .help = QT_TRANSLATE_NOOP("Acctl",
                                 "the port of the projectors that are searched; 4352 by default"),
       .take =
           [](A& a, Text text) {
             return TakeNumber<std::uint16_t>(text, 1, 65535, a.connecting.port);
           },
       .of = {Command::Find}},
      {.name = "password",
       .value = "TEXT",
       .help = QT_TRANSLATE_NOOP("Acctl",
                                 "PJLink password; other users of this machine can see it here"),
       .take = [](A& a, Text text) { return TakeText(text, a.connecting.password); },
       .of = kAskingOrSearching,
       .isForAsking = true},
      {.name = "password-file",
       .value = "FILE",
       .help = QT_TRANSLATE_NOOP("Acctl", "the first line of FILE is the password"),
       .take = [](A& a, Text text) { return TakeText(text, a.connecting.passwordFile); },
       .of = kAskingOrSearching,
       .isDefault = true,
       .isForAsking = true},
      {.name = "format",
       .letter = 'o',
       .value = "FORMAT",
       .help = QT_TRANSLATE_NOOP(
           "Acctl", "output: text, json, jsonl (a line for each value or projector), tsv or value"),
       .take = [](A& a, Text text) { return TakeFormat(text, a.format); },
       .isDefault = true},
      {.name = "json",
       .help = QT_TRANSLATE_NOOP("Acctl", "the same as --format json"),
       .take =
           [](A& a, Text) {
             a.format = Format::Json;
             return true;
           }},
      {.name = "brief",
       .help = QT_TRANSLATE_NOOP("Acctl", "only names or keys, one a line"),
       .take = [](A& a, Text) { return a.brief = true; },
       .of = {Command::List, Command::Models, Command::Settings}},
      {.name = "for",
       .value = "COMMAND",
       .help = QT_TRANSLATE_NOOP("Acctl", "only settings that get, set, reset or watch can use"),
       .take = [](A& a, Text text) { return TakeUse(text, a.usedBy); },
       .of = {Command::Settings}},
      {.name = "only",
       .value = "GLOB",
       .help = QT_TRANSLATE_NOOP("Acctl", "only keys that match GLOB; may be repeated"),
       .take = [](A& a, Text text) { return !a.only.emplace_back(text).empty(); },
       .of = {Command::Save, Command::Diff, Command::Apply}},
      {.name = "from",
       .value = "FILE",
       .help = QT_TRANSLATE_NOOP("Acctl", "take KEY=VALUE lines from FILE ('-' is standard input)"),
       .take = [](A& a, Text text) { return TakeText(text, a.from); },
       .of = {Command::Set}},
      {.name = "folder",
       .letter = 'o',
       .value = "DIR",
       .help = QT_TRANSLATE_NOOP("Acctl", "save each projector in a file of its own in DIR"),
       .take = [](A& a, Text text) { return TakeText(text, a.folder); },
       .of = {Command::Save}},
      {.name = "add",
       .value = "FILE",
       .help = QT_TRANSLATE_NOOP("Acctl", "add what was found to the profile file FILE"),
       .take = [](A& a, Text text) { return TakeText(text, a.file); },
       .of = {Command::Find}},
      {.name = "dry-run",
       .help = QT_TRANSLATE_NOOP("Acctl", "print what would change, and change nothing"),
       .take = [](A& a, Text) { return a.dryRun = true; },
       .of = {Command::Set, Command::Apply, Command::Undo, Command::Import}},
      {.name = "wait",
       .value = "TIME",
       .help = QT_TRANSLATE_NOOP("Acctl",
                                 "wait until the state is reached, up to TIME, such as 90s or 5m"),
       .take = [](A& a, Text text) { return TakeWait(text, a.wait); },
       .of = {Command::Set, Command::Watch}},
      {.name = "until",
       .value = "KEY=VALUE",
       .help = QT_TRANSLATE_NOOP("Acctl", "end when every projector has this value"),
       .take = [](A& a, Text text) { return TakeText(text, a.until); },
       .of = {Command::Watch}},
      {.name = "exit-code",
       .help = QT_TRANSLATE_NOOP(
           "Acctl", "exit with 1 if something differs, with 2 if something could not be compared"),
       .take = [](A& a, Text) { return a.exitCode = true; },
       .of = {Command::Diff}},
      {.name = "lenient",
       .help = QT_TRANSLATE_NOOP("Acctl", "skip what is wrong in FILE instead of sending nothing"),
       .take = [](A& a, Text) { return a.lenient = true; },
       .of = {Command::Diff, Command::Apply}},
      {.name = "force",
       .help = QT_TRANSLATE_NOOP(
           "Acctl", "apply, undo: also the undo file of another projector; save: replace any file"),
       .take = [](A& a, Text) { return a.force = true; },
       .of = {Command::Save, Command::Apply, Command::Undo}},
      {.name = "list",
       .help = QT_TRANSLATE_NOOP("Acctl", "list the runs that can be undone"),
       .take = [](A& a, Text) { return a.list = true; },
       .of = {Command::Undo}},
      {.name = "undo",
       .value = "DIR",
       .help = QT_TRANSLATE_NOOP("Acctl", "the folder for undo files"),
       .take = [](A& a, Text text) { return TakeText(text, a.undoFolder); },
       .of = kRecorded,
       .isDefault = true},
      {.name = "undo-days",
       .value = "N",
       .help = QT_TRANSLATE_NOOP("Acctl",
                                 "remove undo files older than N days; 30 by default, 0 keeps all"),
       .take = [](A& a, Text text) { return TakeNumber(text, 0, 36500, a.undoDays); },
       .of = kRecorded,
       .isDefault = true},
      {.name = "jobs",
       .value = "N",
       .help = QT_TRANSLATE_NOOP(
           "Acctl", "projectors at once, 1 to 1024; by default 512 to read and 64 to change"),
       .take = [](A& a, Text text) { return TakeNumber(text, 1, 1024, a.connecting.jobs); },
       .of = kTrying,
       .isDefault = true,
       .isForAsking = true},
      {.name = "timeout",
       .value = "SECONDS",
       .help = QT_TRANSLATE_NOOP("Acctl", "time for one answer; 2 by default"),
       .take = [](A& a, Text text) { return TakeTimeOut(text, a.connecting.timeOut); },
       .of = kAskingOrSearching,
       .isDefault = true,
       .isForAsking = true},
      {.name = "retries",
       .value = "N",
       .help = QT_TRANSLATE_NOOP("Acctl",
                                 "try a projector that does not answer N more times; 0 by default"),
       .take = [](A& a, Text text) { return TakeNumber(text, 0, 1000, a.connecting.retries); },
       .of = kTrying,
       .isDefault = true,
       .isForAsking = true},
      {.name = "fail-fast",
       .help = QT_TRANSLATE_NOOP("Acctl", "begin no other projector after the first error"),
       .take = [](A& a, Text) { return a.failFast = true; },
       .of = kTrying,
       .isForAsking = true},
      {.name = "interval",
       .value = "SECONDS",
       .help = QT_TRANSLATE_NOOP("Acctl", "time between two readings; 1 by default"),
       .take = [](A& a, Text text) { return TakeTimeOut(text, a.interval); },
       .of = {Command::Set, Command::Watch},
       .isDefault = true},
      {.name = "language",
       .value = "NAME",
       .help = QT_TRANSLATE_NOOP("Acctl", "language of texts, such as de or zh-TW"),
       .take = [](A& a, Text text) { return TakeLanguage(text, a.language); },
       .isDefault = true},
      {.name = "help",
       .letter = 'h',
       .help = QT_TRANSLATE_NOOP("Acctl", "this text; with a command, its own"),
       .take = [](A&, Text) { return true; }},
      {.name = "version",
       .help = QT_TRANSLATE_NOOP("Acctl", "the version"),
       .take = [](A&, Text) { return true; }},
  };
}

}  // namespace

bool OptionForm::IsOf(Command command) const {
  return of.empty() || std::ranges::find(of, command) != of.end();
}

const std::vector<OptionForm>& OptionForms() {
  static const std::vector<OptionForm> options = MakeOptions();
  return options;
}

const OptionForm* FindOption(std::string_view name) {
  const auto found = std::ranges::find(OptionForms(), name, &OptionForm::name);
  return found != OptionForms().end() ? &*found : nullptr;
}

std::string_view NameOf(Format format) {
  return std::ranges::find(kFormats, format, [](const auto& known) { return known.second; })->first;
}
