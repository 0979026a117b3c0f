#include "app/bridge/Options.h"

#include <algorithm>
#include <cmath>

#include <QCommandLineParser>
#include <QDir>

#include "app/bridge/BrokerOptions.h"
#include "app/bridge/OptionReading.h"
#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

constexpr double kLongest = 86'400;  // seconds
constexpr const char* kNone = "none";

class Reader {
 public:
  Options Read(const QStringList& arguments);

 private:
  std::chrono::milliseconds Seconds(const QCommandLineOption& option, double least) const;
  QByteArray Prefix(const QCommandLineOption& option) const;
  Share ReadShare() const;
  void ReadListener(Options& options) const;
  CommandDesk::Rules ReadCommands() const;

  QCommandLineParser parser_;
  const QCommandLineOption help_{{"h", "help"}, BridgeOptions::tr("Display this help.")};
  const QCommandLineOption profiles_{"profiles",
                                     BridgeOptions::tr("The projectors are those of <file>."),
                                     BridgeOptions::tr("file")};
  const QCommandLineOption share_{
      "share", BridgeOptions::tr("Watch one of several shares: 2/5 is the second of five."),
      BridgeOptions::tr("share"), "1/1"};
  const QCommandLineOption tags_{
      "tag", BridgeOptions::tr("Watch only projectors with <tag>, or one of several."),
      BridgeOptions::tr("tag")};
  const QCommandLineOption interval_{
      "interval", BridgeOptions::tr("Visit each projector every <seconds>, at least 5."),
      BridgeOptions::tr("seconds"), "60"};
  const QCommandLineOption compare_{
      "compare",
      BridgeOptions::tr("Once a day, compare each projector with its snapshot in <folder>."),
      BridgeOptions::tr("folder")};
  const QCommandLineOption notices_{
      "notices", BridgeOptions::tr("Listen at <address> for the status notices of projectors."),
      BridgeOptions::tr("address")};
  const QCommandLineOption listen_{
      "listen", BridgeOptions::tr("Serve metrics at <address:port>; 'none' for nowhere."),
      BridgeOptions::tr("address:port"), "127.0.0.1:9550"};
  const QCommandLineOption textFile_{
      "text-file",
      BridgeOptions::tr("Write metrics to <file> every 15 seconds, for a collector of text files."),
      BridgeOptions::tr("file")};
  const BrokerOptions broker_{};
  const QCommandLineOption prefix_{"topic", BridgeOptions::tr("The first level of all topics."),
                                   BridgeOptions::tr("topic"), "projectors"};
  const QCommandLineOption discovery_{
      "discovery",
      BridgeOptions::tr("The first level of discovery topics; 'none' for no discovery."),
      BridgeOptions::tr("topic"), "homeassistant"};
  const QCommandLineOption takeover_{
      "takeover",
      BridgeOptions::tr("Take the share of a bridge that has said nothing for <seconds>."),
      BridgeOptions::tr("seconds"), "30"};
  const QCommandLineOption allow_{
      "allow-commands",
      BridgeOptions::tr(
          "Settings that may be commanded: keys or patterns, separated by commas; 'power' is the "
          "power. Without it nothing may be."),
      BridgeOptions::tr("keys")};
  const QCommandLineOption perMinute_{
      "commands-per-minute", BridgeOptions::tr("Commands that each projector takes in a minute."),
      BridgeOptions::tr("n"), "30"};
  const QCommandLineOption language_{
      "language",
      BridgeOptions::tr(
          "Names in discovery messages, and messages of this program, are in the language "
          "<name>, such as de or zh-TW."),
      BridgeOptions::tr("name"), "1033"};
};

std::chrono::milliseconds Reader::Seconds(const QCommandLineOption& option, double least) const {
  bool isNumber = false;
  const double seconds = parser_.value(option).toDouble(&isNumber);
  if (!isNumber || !(seconds >= least && seconds <= kLongest)) {
    ThrowWrong(parser_, option,
               BridgeOptions::tr("'%1' is not a time from %2 seconds to a day")
                   .arg(QStringLiteral("%1"), QString::number(least)));
  }
  return std::chrono::milliseconds(std::lround(1000 * seconds));
}

/// Levels without wildcards, and no empty one.
QByteArray Reader::Prefix(const QCommandLineOption& option) const {
  const QString text = parser_.value(option);
  for (const QString& level : text.split('/')) {
    if (level.isEmpty() || level.contains('+') || level.contains('#')) {
      ThrowWrong(parser_, option, BridgeOptions::tr("'%1' is not a topic"));
    }
  }
  return text.toUtf8();
}

Share Reader::ReadShare() const {
  auto share = ParseShare(parser_.value(share_).toStdString());
  if (!share) ThrowWrong(parser_, share_, BridgeOptions::tr("'%1' is not a share such as 2/5"));
  for (const QString& tag : parser_.values(tags_)) share->tags.push_back(tag.toStdString());
  return *share;
}

void Reader::ReadListener(Options& options) const {
  options.textFile = parser_.value(textFile_);
  options.listens = parser_.value(listen_) != kNone;
  if (!options.listens) return;
  const auto place = HostAndPort(parser_.value(listen_), options.listenPort);
  if (!place || !options.listenAddress.setAddress(place->first)) {
    ThrowWrong(parser_, listen_, BridgeOptions::tr("'%1' is not a numeric address with a port"));
  }
  options.listenPort = place->second;
}

CommandDesk::Rules Reader::ReadCommands() const {
  std::vector<std::string> keys;
  for (const QString& list : parser_.values(allow_)) {
    for (const QString& key : list.split(',', Qt::SkipEmptyParts)) {
      keys.push_back(key.trimmed().toStdString());
      const KeyRules rules({keys.back()});
      const auto allows = [&rules](std::string_view known) { return rules.Allows(known); };
      if (rules.Allows(kPowerKey) || std::ranges::any_of(AllKeys(), allows)) continue;
      throw WrongOption{
          BridgeOptions::tr("--allow-commands: '%1' is not a setting that may be commanded")
              .arg(key.trimmed())};
    }
  }
  constexpr int kMost = 6000;
  const int perMinute = parser_.value(perMinute_).toInt();
  if (perMinute < 1 || perMinute > kMost) {
    ThrowWrong(parser_, perMinute_,
               BridgeOptions::tr("'%1' is not a number from 1 to %2")
                   .arg(QStringLiteral("%1"), QString::number(kMost)));
  }
  return {.keys = KeyRules(std::move(keys)),
          .perMinute = perMinute,
          .burst = std::max(perMinute / 3, 1)};
}

Options Reader::Read(const QStringList& arguments) {
  parser_.setApplicationDescription(BridgeOptions::tr(
      "Watches projectors, and tells a metrics store and a message broker of them."));
  parser_.addOptions(
      {help_, profiles_, share_, tags_, interval_, compare_, notices_, listen_, textFile_});
  broker_.AddTo(parser_);
  parser_.addOptions({prefix_, discovery_, takeover_, allow_, perMinute_, language_});
  if (!parser_.parse(arguments)) throw WrongOption{parser_.errorText()};
  if (const QStringList rest = parser_.positionalArguments(); !rest.isEmpty()) {
    throw WrongOption{BridgeOptions::tr("unexpected argument '%1'").arg(rest.first())};
  }
  Options options;
  if (parser_.isSet(help_)) {
    options.help = parser_.helpText();
    return options;
  }
  options.profiles = parser_.value(profiles_);
  if (options.profiles.isEmpty()) throw WrongOption{BridgeOptions::tr("--profiles is missing")};
  options.share = ReadShare();
  constexpr double kShortestInterval = 5;
  options.interval = Seconds(interval_, kShortestInterval);
  if (parser_.isSet(notices_) && !options.notices.setAddress(parser_.value(notices_))) {
    ThrowWrong(parser_, notices_, BridgeOptions::tr("'%1' is not a numeric address"));
  }
  options.snapshots = parser_.value(compare_);
  if (parser_.isSet(compare_) && !QDir(options.snapshots).exists()) {
    ThrowWrong(parser_, compare_, BridgeOptions::tr("'%1' is not a folder"));
  }
  ReadListener(options);
  options.broker = broker_.Read(parser_);
  if (parser_.isSet(allow_) && !options.broker) {
    throw WrongOption{BridgeOptions::tr("--%1 needs --broker").arg(allow_.names().constFirst())};
  }
  options.prefix = Prefix(prefix_);
  options.discoveryPrefix = parser_.value(discovery_) == kNone ? QByteArray() : Prefix(discovery_);
  options.takeover = Seconds(takeover_, 1);
  options.commands = ReadCommands();
  const auto language =
      FindLanguage(CatalogLanguages(CatalogFolders()), parser_.value(language_).toStdString());
  if (!language) ThrowWrong(parser_, language_, BridgeOptions::tr("there are no texts in '%1'"));
  options.language = *language;
  return options;
}

}  // namespace

Options ParseOptions(const QStringList& arguments) {
  try {
    return Reader().Read(arguments);
  } catch (const WrongOption& wrong) {
    Options options;
    options.error = wrong.error;
    return options;
  }
}
