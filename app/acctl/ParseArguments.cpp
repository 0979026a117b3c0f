#include "app/acctl/ParseArguments.h"

#include <algorithm>

#include "app/acctl/Message.h"
#include "app/acctl/OptionTable.h"
#include "app/acctl/OwnSettings.h"
#include "app/profiles/Translations.h"
#include "i18n/SystemLanguage.h"

namespace {

struct GivenOption {
  const OptionForm* form;
  std::string value;
  bool isShort;
};

struct GivenWords {
  std::vector<GivenOption> options;
  std::vector<std::string> words;
  std::string error;
};

/// Whether the words ask for JSON or another format: used for errors that occur before the options
/// are read.
bool NamesFormat(const std::vector<std::string>& words, const std::string& format) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const bool isFormat = i > 0 && (words[i - 1] == "-o" || words[i - 1] == "--format");
    if (words[i] == "--format=" + format || (isFormat && words[i] == format)) return true;
  }
  return false;
}

bool WantsJson(const std::vector<std::string>& words) {
  return NamesFormat(words, "json") || std::ranges::find(words, "--json") != words.end();
}

/// The usual texts are in the user's language; those in JSON are in English. `arguments` has the
/// defaults.
void ChooseLanguage(const std::vector<std::string>& words, const Arguments& arguments) {
  const bool isJson = WantsJson(words) || NamesFormat(words, "jsonl") ||
                      arguments.format == Format::Json || arguments.format == Format::JsonLines;
  QStringList list;
  for (const std::string& word : words) list += Wide(word);
  const auto named = isJson ? std::optional(kEnglishUnitedStates) : NamedLanguage(list);
  InstallTranslations(named ? *named : arguments.language.value_or(SystemLanguageId()));
}

// "--name", "--name value", "--name=value", "-o value". Words after "--" are never options, and any
// other word that begins with one "-" is a value. Goes on after an error, because the output format
// may still follow.
GivenWords Separate(const std::vector<std::string>& words) {
  GivenWords given;
  const auto fail = [&given](std::string error) {
    if (given.error.empty()) given.error = std::move(error);
  };
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (*word == "--") {
      given.words.insert(given.words.end(), word + 1, words.end());
      break;
    }
    const bool isShort = *word == "-h" || *word == "-o";
    if (!isShort && !word->starts_with("--")) {
      given.words.push_back(*word);
      continue;
    }
    std::string name = isShort ? (*word == "-h" ? "help" : "format") : word->substr(2);
    const auto equals = name.find('=');
    std::optional<std::string> value;
    if (equals != std::string::npos) {
      value = name.substr(equals + 1);
      name.resize(equals);
    }
    const OptionForm* const option = FindOption(name);
    if (option == nullptr) {
      fail(Message(Acctl::tr("there is no option --%1"), name));
      continue;
    }
    if (option->value.empty() && value) {
      fail(Message(Acctl::tr("--%1 takes no value"), name));
      continue;
    }
    if (!option->value.empty() && !value) {
      if (word + 1 == words.end()) {
        //: An option and what must follow it: "--profiles needs FILE".
        fail(Message(Acctl::tr("--%1 needs %2"), name, option->value));
        break;
      }
      value = *++word;
    }
    given.options.push_back({option, value.value_or(std::string()), isShort});
  }
  return given;
}

/// -o is the folder of `save`, and the form of the output of any other command.
bool IsFolder(const GivenOption& option, Command command) {
  return option.isShort && option.form->name == "format" && command == Command::Save;
}

/// The output format that the words ask for, even if other words are wrong; nothing if they ask for
/// none.
std::optional<Format> AskedFormat(const GivenWords& given, Command command) {
  std::optional<Format> asked;
  for (const GivenOption& option : given.options) {
    const bool isFormat = option.form->name == "format" || option.form->name == "json";
    Arguments taken;
    if (!isFormat || IsFolder(option, command)) continue;
    if (option.form->take(taken, option.value)) asked = taken.format;
  }
  return asked;
}

/// What is wrong if an option has no effect because another one is missing or given; else empty.
std::string WhyIdle(const OptionForm& option, const Arguments& arguments) {
  const Command command = arguments.command;
  const auto needs = [&option](const char* other) {
    //: An option and what must follow it: "--profiles needs FILE".
    return Message(Acctl::tr("--%1 needs %2"), option.name, other);
  };
  const bool asksForWhere = command == Command::List || command == Command::Export;
  if (asksForWhere && option.isForAsking && arguments.where.empty()) return needs("--where");
  if (command == Command::Set && option.name == "interval" && !arguments.wait) {
    return needs("--wait");
  }
  const bool isOfList = option.of.empty() || option.name == "list" || option.name == "undo";
  if (!arguments.list || isOfList) return {};
  return Message(Acctl::tr("%1 takes no %2"), "undo --list", "--" + std::string(option.name));
}

std::string TakeOptions(const GivenWords& given, const CommandForm& form, Arguments& arguments) {
  for (const GivenOption& one : given.options) {
    const OptionForm& option = IsFolder(one, form.command) ? *FindOption("folder") : *one.form;
    const std::string name = "--" + std::string(option.name);
    if (!option.IsOf(form.command)) {
      //: A command and an option: "list takes no --wait".
      return Message(Acctl::tr("%1 takes no %2"), form.name, name);
    }
    if (!option.take(arguments, one.value)) {
      //: An option and its value.
      return Message(Acctl::tr("%1: '%2' is not possible"), name, one.value);
    }
  }
  for (const GivenOption& one : given.options) {
    if (std::string error = WhyIdle(*one.form, arguments); !error.empty()) return error;
  }
  return {};
}

bool HasFormat(Command command, Format format) {
  const bool isOnlyText = command == Command::Export || command == Command::Help ||
                          command == Command::Man || command == Command::Version;
  if (isOnlyText) return format == Format::Text;
  const bool hasValues = command == Command::Get || command == Command::Set ||
                         command == Command::Status || command == Command::Reset;
  return hasValues || (format != Format::Tsv && format != Format::Value);
}

bool IsAssignment(const std::string& word) {
  const auto end = word.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789.-_");
  if (end == std::string::npos || end == 0) return false;
  return word[end] == '=' || (word[end] == '+' && word.compare(end, 2, "+=") == 0);
}

/// Splits the words into keys and values, in turn. Returns whether every key has a value.
bool PairWords(std::vector<std::string>& words) {
  std::vector<std::string> pairs;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (AddAssignment(words[i], pairs)) continue;
    if (i + 1 < words.size()) {
      pairs.push_back(words[i]);
      pairs.push_back(words[++i]);
    } else {
      return false;
    }
  }
  words = std::move(pairs);
  return true;
}

void Distribute(std::vector<std::string> words, Words order, Arguments& arguments) {
  switch (order) {
    case Words::Projectors:
      arguments.projectors = std::move(words);
      return;
    case Words::File:
    case Words::FileProjectors:
      arguments.file = std::move(words.front());
      arguments.projectors.assign(words.begin() + 1, words.end());
      return;
    case Words::ProjectorFile:
      arguments.file = std::move(words.back());
      arguments.projectors = {std::move(words.front())};
      return;
    case Words::ProjectorWords:
      arguments.projectors = {std::move(words.front())};
      arguments.words.assign(words.begin() + 1, words.end());
      return;
    default:
      arguments.words = std::move(words);
  }
}

/// Assigns the words of commands whose usage the table of commands cannot describe. Returns false
/// if the usage is wrong.
bool TakeSpecialWords(Arguments& arguments) {
  auto& words = arguments.words;
  switch (arguments.command) {
    case Command::Set:
      return PairWords(words) && (!words.empty() || !arguments.from.empty());
    case Command::Save:
      if (arguments.folder.empty()) {
        if (words.size() != 2) return false;
        arguments.file = std::move(words.back());
        words.pop_back();
      }
      arguments.projectors = std::move(words);
      words.clear();
      return true;
    case Command::Help:
    case Command::Man:
      if (words.empty()) return true;
      if (const CommandForm* const topic = FindCommand(words.front())) {
        arguments.topic = topic->command;
        return true;
      }
      return false;
    case Command::Undo:
      if (words.empty()) return true;
      arguments.file = words.front();
      arguments.projectors.assign(words.begin() + 1, words.end());
      return !arguments.list;
    default:
      return true;
  }
}

bool IsAsked(const GivenWords& given, std::string_view option) {
  return std::ranges::any_of(given.options,
                             [&](const GivenOption& taken) { return taken.form->name == option; });
}

bool NeedsFile(Command command) {
  return command == Command::Diff || command == Command::Apply || command == Command::Save;
}

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  ChooseLanguage(words, arguments);
  TakeOwnSettings(arguments);
  if (arguments.language || arguments.format != Format::Text) ChooseLanguage(words, arguments);
  // The words of `complete` are those of another command, which may be incomplete.
  const bool completes = !words.empty() && words.front() == FormOf(Command::Complete).name;
  if (completes && arguments.error.empty()) {
    arguments.command = Command::Complete;
    arguments.words.assign(words.begin() + 1, words.end());
    const auto option = std::ranges::find(words, "--profiles");
    if (words.end() - option > 2) arguments.profiles = option[1];
    return arguments;
  }
  GivenWords given = Separate(words);
  const CommandForm* const form = given.words.empty() ? nullptr : FindCommand(given.words.front());
  if (form != nullptr) arguments.command = form->command;
  const auto asked = AskedFormat(given, arguments.command);
  const Format usual = arguments.format;
  const auto wrong = [&](std::string error) {
    arguments.format = asked.value_or(usual);
    arguments.error = std::move(error);
    return arguments;
  };
  if (!arguments.error.empty()) return wrong(arguments.error);
  if (!given.error.empty()) return wrong(given.error);
  if (IsAsked(given, "version")) {
    arguments.command = Command::Version;
    return arguments;
  }
  const bool wantsHelp = IsAsked(given, "help");
  if (given.words.empty()) {
    return wantsHelp ? arguments
                     : wrong(Message(Acctl::tr("a command is missing; --help lists them")));
  }
  if (form == nullptr) {
    return wrong(
        Message(Acctl::tr("there is no command '%1'; --help lists them"), given.words.front()));
  }
  if (wantsHelp) {
    arguments.topic = form->command;
    arguments.command = Command::Help;
    return arguments;
  }
  std::string error = TakeOptions(given, *form, arguments);
  if (!error.empty()) return wrong(std::move(error));
  if (!HasFormat(form->command, arguments.format)) {
    if (asked) return wrong(Message(Acctl::tr("%1 has no such --format"), form->name));
    arguments.format = Format::Text;
  }
  given.words.erase(given.words.begin());
  const int count = static_cast<int>(std::min<std::size_t>(given.words.size(), 1'000'000));
  const bool isRight = count >= form->least && count <= form->most;
  if (isRight) Distribute(std::move(given.words), form->words, arguments);
  if (!isRight || !TakeSpecialWords(arguments)) {
    return wrong(Message(Acctl::tr("use: %1"), UsageOf(*form)));
  }
  const bool needsFile = NeedsFile(form->command) && arguments.folder.empty();
  if (needsFile && arguments.file.empty()) {
    return wrong(Message(Acctl::tr("the name of the file is empty")));
  }
  return arguments;
}

bool AddAssignment(const std::string& word, std::vector<std::string>& words) {
  if (!IsAssignment(word)) return false;
  const auto equals = word.find('=');
  std::string key = word.substr(0, equals);
  std::string value = word.substr(equals + 1);
  if (key.ends_with('+') || key.ends_with('-')) {  // what looks like a key has "-=" inside
    value.insert(value.begin(), key.back());
    key.pop_back();
  } else if (value.starts_with('-') || value.starts_with('+')) {
    value.insert(value.begin(), '=');
  }
  words.push_back(std::move(key));
  words.push_back(std::move(value));
  return true;
}
