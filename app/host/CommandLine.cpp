#include "app/host/CommandLine.h"

#include <QCommandLineParser>

namespace {

// What Qt's application objects and its platforms take; with one hyphen or two.
const QStringList kToolkitValues{
    "platform", "platformpluginpath", "platformtheme", "plugin",       "qwindowgeometry",
    "geometry", "qwindowicon",        "icon",          "qwindowtitle", "title",
    "style",    "stylesheet",         "session",       "display",      "name"};
const QStringList kToolkitSwitches{"reverse", "widgetcount", "nograb", "dograb", "sync"};

struct Arguments {
  QStringList own;
  QStringList toolkit;  ///< Names alone.
};

Arguments Divide(const QStringList& all) {
  Arguments divided;
  for (qsizetype i = 0; i < all.size(); ++i) {
    const QString& argument = all[i];
    const auto hyphens = argument.startsWith(QLatin1String("--")) ? 2 : 1;
    const QString name = argument.mid(hyphens).section(QLatin1Char('='), 0, 0);
    const bool takesValue = kToolkitValues.contains(name);
    if (!argument.startsWith(QLatin1Char('-')) ||
        (!takesValue && !kToolkitSwitches.contains(name))) {
      divided.own += argument;
      continue;
    }
    divided.toolkit += name;
    if (takesValue && !argument.contains(QLatin1Char('='))) ++i;
  }
  return divided;
}

CommandLine Wrong(const QString& error) {
  CommandLine line;
  line.error = error;
  return line;
}

std::optional<int> Number(const QString& text) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

}  // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Opens the Advanced Control dialog on simulated projectors."));
  const QCommandLineOption help({"h", "help"}, "Display this help.");
  const QCommandLineOption version = parser.addVersionOption();
  const QCommandLineOption profiles("profiles", "Read the projectors from <file>.", "file");
  const QCommandLineOption open("open", "Open the dialog of the projector <name> at start.",
                                "name");
  const QCommandLineOption tab("tab", "With --open: select tab <n>, counted from 0.", "n");
  const QCommandLineOption list("list", "Print the table of projectors.");
  const QCommandLineOption screenshot(
      "screenshot", "With --open: save a picture (PNG) of the dialog and exit.", "file");
  const QCommandLineOption tour(
      "tour", "Save pictures of all tabs of all kinds of projectors in <folder> and exit.",
      "folder");
  const QCommandLineOption language(
      "language", "Show texts in the language <id>: 1033 English, 2052 Chinese.", "id");
  parser.addOptions({help, profiles, open, tab, list, screenshot, tour, language});

  const auto [own, toolkit] = Divide(arguments);
  if (!parser.parse(own)) return Wrong(parser.errorText());
  if (!parser.positionalArguments().isEmpty()) {
    return Wrong(
        QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));
  }

  CommandLine line;
  if (parser.isSet(help)) {
    line.action = CommandLine::Action::Help;
    line.help = parser.helpText();
    return line;
  }
  if (parser.isSet(version)) {
    line.action = CommandLine::Action::Version;
    return line;
  }
  for (const QCommandLineOption& option : {profiles, open, screenshot, tour}) {
    if (parser.isSet(option) && parser.value(option).isEmpty()) {
      return Wrong(QStringLiteral("--%1 needs a value.").arg(option.names().first()));
    }
  }
  if (parser.isSet(list) + parser.isSet(tour) + parser.isSet(open) > 1) {
    return Wrong(QStringLiteral("Only one of --list, --tour and --open can be given."));
  }
  for (const QCommandLineOption& option : {tab, screenshot}) {
    if (parser.isSet(option) && !parser.isSet(open)) {
      return Wrong(QStringLiteral("--%1 needs --open.").arg(option.names().first()));
    }
  }

  line.platform = toolkit.contains(QLatin1String("platform"));
  line.style = toolkit.contains(QLatin1String("style"));
  line.profiles = parser.value(profiles);
  line.open = parser.value(open);
  if (parser.isSet(tab)) {
    line.tab = Number(parser.value(tab));
    if (!line.tab.has_value()) {
      return Wrong(QStringLiteral("--tab: '%1' is not a number.").arg(parser.value(tab)));
    }
  }
  if (parser.isSet(language)) {
    line.language = Number(parser.value(language));
    if (line.language != 1033 && line.language != 2052) {
      return Wrong(
          QStringLiteral("--language: '%1' is neither 1033 nor 2052.").arg(parser.value(language)));
    }
  }
  if (parser.isSet(list)) line.action = CommandLine::Action::List;
  if (parser.isSet(screenshot)) {
    line.action = CommandLine::Action::Screenshot;
    line.target = parser.value(screenshot);
  }
  if (parser.isSet(tour)) {
    line.action = CommandLine::Action::Tour;
    line.target = parser.value(tour);
  }
  return line;
}
