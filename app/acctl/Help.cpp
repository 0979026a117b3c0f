#include "app/acctl/Help.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <vector>

#include <QTextBoundaryFinder>

#include "app/acctl/Message.h"
#include "app/acctl/OptionTable.h"
#include "app/profiles/Table.h"

namespace {

// clang-format off
// Texts that only the manual page has are not translated, because the manual page is in English.
constexpr std::string_view kIntroduction = QT_TRANSLATE_NOOP("Acctl",
    "Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The "
    "projectors are those of a profile file.");
constexpr std::string_view kWords = QT_TRANSLATE_NOOP("Acctl",
    "P selects projectors: a name, a pattern such as 'Lecture*', @TAG, or model=PATTERN. Several are separated by "
    "commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as 'picture.*', or a short name "
    "such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the "
    "text of an entry in any language of the dialog, or its code.");

struct Named {
  std::string_view name;
  std::string_view text;
};
constexpr Named kExitCodes[] = {
    {"0", QT_TRANSLATE_NOOP("Acctl",
          "Done. Also if a projector in standby could not report everything, or accepted a change that has not taken "
          "effect yet.")},
    {"1", QT_TRANSLATE_NOOP("Acctl",
          "Something was refused, a projector lacks a setting that was named, or a file or the output could not be read "
          "or written.")},
    {"2", QT_TRANSLATE_NOOP("Acctl", "Wrong use: nothing was sent to any projector.")},
    {"3", QT_TRANSLATE_NOOP("Acctl",
          "A projector did not answer or did not report its inputs, or another run of acctl used it.")},
    {"128 + signal", QT_TRANSLATE_NOOP("Acctl", "Interrupted; the report says what was done.")},
};
constexpr Named kVariables[] = {
    {"ACCTL_PASSWORD", "The PJLink password if no option gives one. At a terminal it is asked for if it is missing."},
    {"ACCTL_CONFIG", "The configuration file, instead of the user's own."},
    {"XDG_CONFIG_HOME, XDG_DATA_HOME, XDG_STATE_HOME, XDG_CACHE_HOME", "The folders of the files below."},
};
constexpr Named kFiles[] = {
    {"~/.config/advanced-control/acctl.conf", "Defaults, one a line, such as 'jobs = 32'."},
    {"~/.local/share/advanced-control/presets", "Presets, which 'apply' and 'diff' find by name."},
    {"~/.local/state/advanced-control/undo", "What 'acctl undo' restores."},
    {"~/.cache/advanced-control/locks", "Locks, so that runs for one projector wait for each other."},
    {"$XDG_RUNTIME_DIR/advanced-control", "Where running simulators serve simulated projectors."},
};
// clang-format on

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  std::istringstream stream{std::string(text)};
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// The parts of a text between which a line may end, with their blanks: words, or in languages
/// without blanks between words what must stay together.
QStringList Parts(const QString& text) {
  QStringList parts;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
  for (qsizetype begin = 0, end = finder.toNextBoundary(); end > begin;
       begin = end, end = finder.toNextBoundary()) {
    const QString part = text.mid(begin, end - begin);
    // A file's name or an option is one word.
    const bool isWithin = !parts.isEmpty() && part.front().unicode() < 0x80 &&
                          parts.back().back().unicode() < 0x80 && !parts.back().back().isSpace();
    if (isWithin) {
      parts.back() += part;
    } else {
      parts += part;
    }
  }
  return parts;
}

/// The text in lines of up to 79 columns.
std::string Wrapped(std::string_view text, std::size_t indent = 0) {
  constexpr int kWidth = 79;
  std::string wrapped;
  for (const std::string& paragraph : Lines(text)) {
    const std::string margin(indent, ' ');
    QString line;
    const auto end = [&] { wrapped += margin + line.trimmed().toStdString() + '\n'; };
    for (const QString& part : Parts(Wide(paragraph))) {
      const QString longer = line + part;
      const int width = DisplayWidth(longer.trimmed().toStdString()) + static_cast<int>(indent);
      if (!line.isEmpty() && width > kWidth) {
        end();
        line = part;
      } else {
        line = longer;
      }
    }
    end();
  }
  return wrapped;
}

/// A text of the tables in the user's language.
std::string Translated(std::string_view text) {
  return Message(Acctl::tr(std::string(text).c_str()));
}

/// "  left   text", with the text wrapped in its own column.
std::string Entry(std::string left, std::string_view text) {
  constexpr std::size_t kColumn = 28;
  const std::string wrapped = Wrapped(text, kColumn);
  left.insert(0, "  ");
  if (left.size() + 2 > kColumn) return left + '\n' + wrapped;
  left.resize(kColumn, ' ');
  return left + wrapped.substr(kColumn);
}

std::string SwitchOf(const OptionForm& option, std::optional<Command> topic) {
  const bool isTaken = topic == Command::Save && option.name == "format";  // by the folder
  std::string text =
      option.letter != 0 && !isTaken ? std::string("-") + option.letter + ", " : std::string();
  text += "--" + std::string(option.name);
  return option.value.empty() ? text : text + ' ' + std::string(option.value);
}

std::vector<const OptionForm*> OptionsOf(std::optional<Command> topic) {
  std::vector<const OptionForm*> options;
  for (const OptionForm& option : OptionForms()) {
    const bool isMeant = topic ? option.IsOf(*topic) : option.of.empty();
    if (isMeant) options.push_back(&option);
  }
  return options;
}

std::string Roff(std::string_view text) {
  std::string roff;
  for (const char letter : text) {
    if (letter == '-' || letter == '\\') roff += '\\';
    if (letter == '\'') {
      roff += "\\(aq";
    } else {
      roff += letter;
    }
  }
  return roff;
}

std::string RoffEntry(std::string_view left, std::string_view text) {
  return ".TP\n.B " + Roff(left) + '\n' + Roff(text) + '\n';
}

std::string RoffEntries(std::string_view title, std::span<const Named> entries) {
  std::string text = ".SH " + std::string(title) + '\n';
  for (const auto& [name, meaning] : entries) text += RoffEntry(name, meaning);
  return text;
}

std::string RoffOptions(std::optional<Command> topic) {
  std::string text = ".SH OPTIONS\n";
  for (const OptionForm* option : OptionsOf(topic)) {
    text += RoffEntry(SwitchOf(*option, topic), option->help);
  }
  return text;
}

std::string RoffExamples(std::string_view examples) {
  std::string text = ".SH EXAMPLES\n.nf\n";
  for (const std::string& line : Lines(examples)) text += Roff(line) + '\n';
  return text + ".fi\n";
}

/// The first example of each command.
std::string AllExamples() {
  std::string text;
  for (const CommandForm& form : CommandForms()) {
    if (!form.examples.empty()) text += Lines(form.examples).front() + '\n';
  }
  return text;
}

std::string CommandPage(const CommandForm& form) {
  const std::string name = "acctl-" + std::string(form.name);
  std::string text = ".TH " + name + " 1 \"\" \"Advanced Control\" \"User Commands\"\n";
  text += ".SH NAME\n" + Roff(name) + " \\- " + Roff(form.summary) + "\n.SH SYNOPSIS\n.nf\n";
  text += Roff(UsageOf(form)) + "\n.fi\n.SH DESCRIPTION\n";
  for (const std::string& paragraph : Lines(form.description)) text += Roff(paragraph) + "\n.PP\n";
  return text + Roff(kWords) + '\n' + RoffOptions(form.command) + RoffExamples(form.examples) +
         ".SH SEE ALSO\n.BR acctl (1)\n";
}

}  // namespace

std::string HelpText(std::optional<Command> topic) {
  const auto title = [](const QString& text) { return '\n' + text.toStdString() + '\n'; };
  std::string text;
  if (topic) {
    const CommandForm& form = FormOf(*topic);
    //: Above the help of a command; %1 is how it is called.
    text = Message(Acctl::tr("Use: %1"), UsageOf(form)) + "\n\n";
    text += Wrapped(Translated(form.description.empty() ? form.summary : form.description));
    text += title(Acctl::tr("Options"));
  } else {
    text = Message(Acctl::tr("Use: %1"), "acctl [options] command ...") + "\n\n";
    text += Wrapped(Translated(kIntroduction)) + title(Acctl::tr("Commands"));
    for (const CommandForm& form : CommandForms()) {
      if (!form.summary.empty()) text += Entry(std::string(form.name), Translated(form.summary));
    }
    text += title(
        Acctl::tr("Options of all commands; 'acctl help COMMAND' lists its own, with examples"));
  }
  for (const OptionForm* option : OptionsOf(topic)) {
    text += Entry(SwitchOf(*option, topic), Translated(option->help));
  }
  text += '\n' + Wrapped(Translated(kWords));
  if (topic) {
    text += title(Acctl::tr("Examples"));
    for (const std::string& line : Lines(FormOf(*topic).examples)) text += "  " + line + '\n';
    return text;
  }
  text += title(Acctl::tr("Exit codes"));
  for (const auto& [code, meaning] : kExitCodes) {
    text += Entry(std::string(code), Translated(meaning));
  }
  return text;
}

std::string ManPage(std::optional<Command> topic) {
  if (topic) return CommandPage(FormOf(*topic));
  std::string text =
      ".TH ACCTL 1 \"\" \"Advanced Control\" \"User Commands\"\n.SH NAME\n"
      "acctl \\- read, change, save and restore the settings of projectors\n"
      ".SH SYNOPSIS\n.B acctl\n[\\fIoptions\\fR] \\fIcommand\\fR ...\n"
      ".SH DESCRIPTION\n";
  text += Roff(kIntroduction) + "\n.PP\n" + Roff(kWords) + "\n.SH COMMANDS\n";
  std::string others;
  for (const CommandForm& form : CommandForms()) {
    if (form.summary.empty()) continue;
    text += RoffEntry(UsageOf(form).substr(6), form.summary);
    if (!form.description.empty()) others += "acctl\\-" + std::string(form.name) + "(1), ";
  }
  text += RoffOptions({}) + RoffEntries("EXIT STATUS", kExitCodes) +
          RoffEntries("ENVIRONMENT", kVariables);
  text += ".PP\nACCTL_ and the name of an option in capitals gives its default:";
  for (const OptionForm& option : OptionForms()) {
    if (option.isDefault) text += ' ' + Roff(option.name);
  }
  text +=
      ". The configuration file may give the same. An option overrides a variable, and a "
      "variable overrides the file.\n";
  return text + RoffEntries("FILES", kFiles) + RoffExamples(AllExamples()) + ".SH SEE ALSO\n" +
         others + "advanced\\-control(1)\n";
}
