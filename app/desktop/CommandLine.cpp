#include "app/desktop/CommandLine.h"

#include <QCommandLineParser>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

// Options of Qt and its platforms that take a value, with one or two hyphens. The value is the next
// argument; some options also take it after an equals sign.
const QStringList kToolkitValues{
    "platform", "platformpluginpath", "platformtheme", "plugin",       "qwindowgeometry",
    "geometry", "qwindowicon",        "icon",          "qwindowtitle", "title",
    "style",    "stylesheet",         "session",       "display",      "name",
    "visual",   "qmljsdebugger"};
const QStringList kEqualsValues{"style", "stylesheet", "qmljsdebugger"};
const QStringList kToolkitSwitches{"reverse", "widgetcount", "nograb",
                                   "dograb",  "qdevel",      "qdebug"};

struct Arguments {
  QStringList own;
  QStringList toolkit;  ///< Names of the options, without values.
  QString error;        ///< Set if Qt would not accept an option.
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
    const bool hasEquals = argument.contains(QLatin1Char('='));
    if (hasEquals && !kEqualsValues.contains(name)) {
      divided.error = CommandLine::tr("Unexpected '=' in '%1'.").arg(argument);
    } else if (takesValue && !hasEquals && ++i == all.size()) {
      divided.error = CommandLine::tr("--%1 needs a value.").arg(name);
    }
  }
  return divided;
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
      CommandLine::tr("Opens the settings dialogs of projectors, real or simulated."));
  const QCommandLineOption help({"h", "help"}, CommandLine::tr("Display this help."));
  const QCommandLineOption version = parser.addVersionOption();
  const QCommandLineOption profiles("profiles", CommandLine::tr("Read the projectors from <file>."),
                                    CommandLine::tr("file"));
  const QCommandLineOption open(
      "open", CommandLine::tr("Open the dialog of the projector <name> at start."),
      CommandLine::tr("name"));
  const QCommandLineOption tab(
      "tab", CommandLine::tr("With --open: select tab <n>, counted from 0."), "n");
  const QCommandLineOption list("list", CommandLine::tr("Print the table of projectors."));
  const QCommandLineOption screenshot(
      "screenshot", CommandLine::tr("With --open: save a picture (PNG) of the dialog and exit."),
      CommandLine::tr("file"));
  const QCommandLineOption tour(
      "tour",
      CommandLine::tr("Save pictures of all tabs of all kinds of projectors in <folder> and exit."),
      CommandLine::tr("folder"));
  const QCommandLineOption language(
      "language", CommandLine::tr("Show texts in the language <name>, such as de or zh-TW."),
      CommandLine::tr("name"));
  parser.addOptions({help, profiles, open, tab, list, screenshot, tour, language});

  const auto [own, toolkit, toolkitError] = Divide(arguments);
  const bool isRead = parser.parse(own);
  CommandLine line;
  const auto wrong = [&line](const QString& error) {
    line.error = error;
    return line;
  };
  if (parser.isSet(language)) {
    line.language =
        FindLanguage(CatalogLanguages(CatalogFolders()), parser.value(language).toStdString());
    if (!line.language) {
      return wrong(
          CommandLine::tr("--language: there are no texts in '%1'.").arg(parser.value(language)));
    }
  }
  if (!isRead) return wrong(parser.errorText());
  if (!toolkitError.isEmpty()) return wrong(toolkitError);
  if (!parser.positionalArguments().isEmpty()) {
    return wrong(
        CommandLine::tr("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));
  }

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
      return wrong(CommandLine::tr("--%1 needs a value.").arg(option.names().first()));
    }
  }
  if (parser.isSet(list) + parser.isSet(tour) + parser.isSet(open) > 1) {
    return wrong(CommandLine::tr("Only one of --list, --tour and --open can be given."));
  }
  for (const QCommandLineOption& option : {tab, screenshot}) {
    if (parser.isSet(option) && !parser.isSet(open)) {
      return wrong(CommandLine::tr("--%1 needs --open.").arg(option.names().first()));
    }
  }

  line.platform =
      toolkit.contains(QLatin1String("platform")) || toolkit.contains(QLatin1String("display"));
  line.style = toolkit.contains(QLatin1String("style"));
  line.profiles = parser.value(profiles);
  line.open = parser.value(open);
  if (parser.isSet(tab)) {
    line.tab = Number(parser.value(tab));
    if (!line.tab.has_value()) {
      return wrong(CommandLine::tr("--tab: '%1' is not a number.").arg(parser.value(tab)));
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
