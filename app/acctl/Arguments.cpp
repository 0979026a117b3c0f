#include "app/acctl/Arguments.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <limits>
#include <string_view>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

using Command = Arguments::Command;

constexpr int kMany = std::numeric_limits<int>::max();

struct CommandForm {
  Command command;
  std::string_view name;
  std::string_view usage;
  std::string_view help;
  int least;  ///< Words behind the command.
  int most;
};

constexpr CommandForm kCommands[] = {
    {Command::List, "list", "", "the projectors", 0, 0},
    {Command::Settings, "settings", "P [KEY...]", "what settings there are and what they take", 1,
     kMany},
    {Command::Get, "get", "P [KEY...]", "present values; all without a key", 1, kMany},
    {Command::Set, "set", "P KEY VALUE...", "change settings", 3, kMany},
    {Command::Reset, "reset", "P KEY...", "put settings back to the projector's standard", 2,
     kMany},
    {Command::Status, "status", "P", "power, input, errors, hours", 1, 1},
    {Command::Save, "save", "P FILE", "save all settings to a file", 2, 2},
    {Command::Diff, "diff", "P FILE", "what differs from a file", 2, 2},
    {Command::Apply, "apply", "FILE P...", "put the settings of a file back", 2, kMany},
    {Command::Watch, "watch", "P KEY...", "print values and every change until Ctrl+C", 2, kMany},
};

struct OptionForm {
  std::string_view name;
  std::string_view value;  ///< What it takes; empty for a switch.
  std::string_view help;
  std::function<bool(Arguments&, const std::string&)> take;
  std::vector<Command> of{};  ///< The commands that take it; none for all.
};

std::string_view NameOf(Command command) {
  return std::ranges::find(kCommands, command, &CommandForm::command)->name;
}

template <class Number>
bool TakeNumber(const std::string& text, Number least, Number most, Number& number) {
  Number taken{};
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), taken);
  if (error != std::errc() || stop != text.data() + text.size()) return false;
  number = taken;
  return taken >= least && taken <= most;
}

bool TakeSeconds(const std::string& text, std::chrono::milliseconds& time) {
  double seconds = 0;
  if (!TakeNumber(text, 0.01, 3600.0, seconds)) return false;
  time = std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000));
  return true;
}

bool TakeText(const std::string& text, std::string& taken) {
  taken = text;
  return !text.empty();
}

bool TakeUse(const std::string& text, Command& command) {
  for (const Command use : {Command::Get, Command::Set, Command::Reset, Command::Watch}) {
    if (NameOf(use) == text) command = use;
  }
  return NameOf(command) == text;
}

bool TakeLanguage(const std::string& text, std::optional<std::uint32_t>& language) {
  language = FindLanguage(CatalogLanguages(CatalogFolders()), text);
  return language.has_value();
}

const std::vector<OptionForm>& Options() {
  using A = Arguments;
  using Text = const std::string&;
  static const std::vector<OptionForm> options{
      {"profiles", "FILE", "read the projectors from FILE",
       [](A& a, Text text) { return TakeText(text, a.profiles); }},
      {"connect", "ADDRESS", "P tells only the model; the projector is at ADDRESS",
       [](A& a, Text text) { return TakeText(text, a.address); }},
      {"password", "TEXT", "of PJLink; others on this machine can see it here",
       [](A& a, Text text) { return TakeText(text, a.password); }},
      {"password-file", "FILE", "the password is the first line of FILE",
       [](A& a, Text text) { return TakeText(text, a.passwordFile); }},
      {"json", "", "print JSON (docs/acctl.md)", [](A& a, Text) { return a.json = true; }},
      {"brief",
       "",
       "names or keys alone, one a line",
       [](A& a, Text) { return a.brief = true; },
       {Command::List, Command::Settings}},
      {"for",
       "COMMAND",
       "only what get, set, reset or watch can use",
       [](A& a, Text text) { return TakeUse(text, a.usedBy); },
       {Command::Settings}},
      {"only",
       "GLOB",
       "only keys like GLOB; may stand more than once",
       [](A& a, Text text) { return !a.only.emplace_back(text).empty(); },
       {Command::Save, Command::Diff, Command::Apply}},
      {"dry-run",
       "",
       "tell what would be changed, and change nothing",
       [](A& a, Text) { return a.dryRun = true; },
       {Command::Apply}},
      {"lenient",
       "",
       "skip what is wrong in FILE instead of sending nothing",
       [](A& a, Text) { return a.lenient = true; },
       {Command::Diff, Command::Apply}},
      {"force",
       "",
       "also the undo file of another projector",
       [](A& a, Text) { return a.force = true; },
       {Command::Apply}},
      {"undo",
       "FOLDER",
       "where the present values are saved first; beside FILE without",
       [](A& a, Text text) { return TakeText(text, a.undoFolder); },
       {Command::Apply}},
      {"jobs", "N", "projectors at once, 1 to 256; 16 without",
       [](A& a, Text text) { return TakeNumber(text, 1, 256, a.jobs); }},
      {"timeout", "SECONDS", "for one answer; 2 without",
       [](A& a, Text text) { return TakeSeconds(text, a.timeOut); }},
      {"interval",
       "SECONDS",
       "between two readings; 1 without",
       [](A& a, Text text) { return TakeSeconds(text, a.interval); },
       {Command::Watch}},
      {"language", "NAME", "texts in the language NAME, such as de or zh-TW",
       [](A& a, Text text) { return TakeLanguage(text, a.language); }},
      {"help", "", "this text", [](A&, Text) { return true; }},
      {"version", "", "the version", [](A&, Text) { return true; }},
  };
  return options;
}

Arguments Wrong(std::string error) {
  Arguments arguments;
  arguments.error = std::move(error);
  return arguments;
}

// Takes the options out of the words: "--name", "--name value", "--name=value". What follows "--"
// is none, and a single minus begins a value.
std::string TakeOptions(const std::vector<std::string>& words, Arguments& arguments,
                        std::vector<std::string>& rest, std::vector<const OptionForm*>& taken) {
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (*word == "--") {
      rest.insert(rest.end(), word + 1, words.end());
      break;
    }
    std::string name = *word == "-h" ? "--help" : *word;
    if (!name.starts_with("--")) {
      rest.push_back(*word);
      continue;
    }
    name.erase(0, 2);
    const auto equals = name.find('=');
    std::optional<std::string> value;
    if (equals != std::string::npos) {
      value = name.substr(equals + 1);
      name.resize(equals);
    }
    const auto option = std::ranges::find(Options(), name, &OptionForm::name);
    if (option == Options().end()) return "there is no option --" + name;
    if (option->value.empty() && value) return "--" + name + " takes no value";
    if (!option->value.empty() && !value) {
      if (word + 1 == words.end()) return "--" + name + " needs " + std::string(option->value);
      value = *++word;
    }
    if (!option->take(arguments, value.value_or(std::string()))) {
      return "--" + name + ": '" + *value + "' is not possible";
    }
    taken.push_back(&*option);
    if (name == "help" || name == "version") {
      arguments.command = name == "help" ? Command::Help : Command::Version;
      rest.clear();
      return {};
    }
  }
  return rest.empty() ? "a command is missing; --help tells them" : std::string();
}

bool NeedsFile(Command command) {
  return command == Command::Save || command == Command::Diff || command == Command::Apply;
}

void Distribute(std::vector<std::string> words, Arguments& arguments) {
  if (arguments.command == Command::Apply) {
    arguments.file = std::move(words.front());
    arguments.projectors.assign(words.begin() + 1, words.end());
    return;
  }
  if (words.empty()) return;
  arguments.projectors = {std::move(words.front())};
  words.erase(words.begin());
  if (NeedsFile(arguments.command)) {
    arguments.file = std::move(words.front());
  } else {
    arguments.words = std::move(words);
  }
}

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  std::vector<std::string> rest;
  std::vector<const OptionForm*> taken;
  std::string error = TakeOptions(words, arguments, rest, taken);
  if (!error.empty()) return Wrong(std::move(error));
  if (rest.empty()) return arguments;
  const auto form = std::ranges::find(kCommands, rest.front(), &CommandForm::name);
  if (form == std::end(kCommands)) {
    return Wrong("there is no command '" + rest.front() + "'; --help tells them");
  }
  for (const OptionForm* option : taken) {
    const bool isOfAll = option->of.empty();
    if (isOfAll || std::ranges::find(option->of, form->command) != option->of.end()) continue;
    return Wrong(std::string(form->name).append(" takes no --").append(option->name));
  }
  rest.erase(rest.begin());
  const int count = static_cast<int>(std::min<std::size_t>(rest.size(), 1'000'000));
  const bool paired = form->command != Command::Set || count % 2 == 1;
  if (count < form->least || count > form->most || !paired) {
    return Wrong("use: acctl " + std::string(form->name) + ' ' + std::string(form->usage));
  }
  arguments.command = form->command;
  Distribute(std::move(rest), arguments);
  if (NeedsFile(arguments.command) && arguments.file.empty()) {
    return Wrong("the name of the file is empty");
  }
  return arguments;
}

std::string HelpText() {
  const auto line = [](std::string left, std::string_view right) {
    constexpr std::size_t kColumn = 26;
    left.resize(std::max(left.size() + 1, kColumn), ' ');
    return left.append(right) + '\n';
  };
  std::string text = "Use: acctl [options] command ...\n\nCommands\n";
  for (const CommandForm& form : kCommands) {
    text += line("  " + std::string(form.name) + ' ' + std::string(form.usage), form.help);
  }
  text += "\nOptions\n";
  for (const OptionForm& option : Options()) {
    std::string help;
    for (const Command command : option.of) {
      help.append(help.empty() ? "" : ", ").append(NameOf(command));
    }
    help.append(help.empty() ? "" : ": ").append(option.help);
    text += line("  --" + std::string(option.name) + ' ' + std::string(option.value), help);
  }
  return text +
         "\nP is a projector of the profile file or a pattern like 'Lecture*'; KEY may be a "
         "pattern\n"
         "too, except for set. VALUE is a number as the dialog shows it, an entry's text, +3 or "
         "-3\n"
         "from the present value, or =-3 for a number below zero. The password may also stand in\n"
         "ACCTL_PASSWORD; at a terminal it is asked for.\n\n"
         "Exit codes: 0 done, 1 something was refused, 2 wrong use and nothing was sent, 3 no "
         "answer.\n";
}
