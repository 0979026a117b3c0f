#include "app/bridge/Options.h"

#include <algorithm>
#include <cmath>

#include <QCommandLineParser>
#include <QDir>

#include "app/bridge/BrokerOptions.h"
#include "app/bridge/OptionReading.h"

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
  const QCommandLineOption help_{{"h", "help"}, "Display this help."};
  const QCommandLineOption profiles_{"profiles", "The projectors are those of <file>.", "file"};
  const QCommandLineOption share_{
      "share", "Watch one of several shares: 2/5 is the second of five.", "share", "1/1"};
  const QCommandLineOption tags_{"tag", "Watch only projectors with <tag>, or one of several.",
                                 "tag"};
  const QCommandLineOption interval_{
      "interval", "Visit each projector every <seconds>, at least 5.", "seconds", "60"};
  const QCommandLineOption compare_{
      "compare", "Once a day, compare each projector with its snapshot in <folder>.", "folder"};
  const QCommandLineOption notices_{
      "notices", "Listen at <address> for the status notices of projectors.", "address"};
  const QCommandLineOption listen_{"listen", "Serve metrics at <address:port>; 'none' for nowhere.",
                                   "address:port", "127.0.0.1:9550"};
  const QCommandLineOption textFile_{
      "text-file", "Write metrics to <file> every 15 seconds, for a collector of text files.",
      "file"};
  const BrokerOptions broker_;
  const QCommandLineOption prefix_{"topic", "The first level of all topics.", "topic",
                                   "projectors"};
  const QCommandLineOption discovery_{
      "discovery", "The first level of discovery topics; 'none' for no discovery.", "topic",
      "homeassistant"};
  const QCommandLineOption takeover_{
      "takeover", "Take the share of a bridge that has said nothing for <seconds>.", "seconds",
      "30"};
  const QCommandLineOption allow_{
      "allow-commands",
      "Settings that may be commanded: keys or patterns, separated by commas; 'power' is the "
      "power. Without it nothing may be.",
      "keys"};
  const QCommandLineOption perMinute_{"commands-per-minute",
                                      "Commands that each projector takes in a minute.", "n", "30"};
  const QCommandLineOption language_{
      "language", "Names in discovery messages are in the language with this identifier.", "id",
      "1033"};
};

std::chrono::milliseconds Reader::Seconds(const QCommandLineOption& option, double least) const {
  bool isNumber = false;
  const double seconds = parser_.value(option).toDouble(&isNumber);
  if (!isNumber || !(seconds >= least && seconds <= kLongest)) {
    ThrowWrong(parser_, option, QStringLiteral("is no time from %1 seconds to a day").arg(least));
  }
  return std::chrono::milliseconds(std::lround(1000 * seconds));
}

/// Levels without wildcards, and no empty one.
QByteArray Reader::Prefix(const QCommandLineOption& option) const {
  const QString text = parser_.value(option);
  for (const QString& level : text.split('/')) {
    if (level.isEmpty() || level.contains('+') || level.contains('#')) {
      ThrowWrong(parser_, option, QStringLiteral("is no topic"));
    }
  }
  return text.toUtf8();
}

Share Reader::ReadShare() const {
  auto share = ParseShare(parser_.value(share_).toStdString());
  if (!share) ThrowWrong(parser_, share_, QStringLiteral("is no share such as 2/5"));
  for (const QString& tag : parser_.values(tags_)) share->tags.push_back(tag.toStdString());
  return *share;
}

void Reader::ReadListener(Options& options) const {
  options.textFile = parser_.value(textFile_);
  options.listens = parser_.value(listen_) != kNone;
  if (!options.listens) return;
  const auto place = HostAndPort(parser_.value(listen_), options.listenPort);
  if (!place || !options.listenAddress.setAddress(place->first)) {
    ThrowWrong(parser_, listen_, QStringLiteral("is no numeric address with a port"));
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
      throw WrongOption{QStringLiteral("--allow-commands: '%1' is no setting that may be commanded")
                            .arg(key.trimmed())};
    }
  }
  constexpr int kMost = 6000;
  const int perMinute = parser_.value(perMinute_).toInt();
  if (perMinute < 1 || perMinute > kMost) {
    ThrowWrong(parser_, perMinute_, QStringLiteral("is no number from 1 to %1").arg(kMost));
  }
  return {.keys = KeyRules(std::move(keys)),
          .perMinute = perMinute,
          .burst = std::max(perMinute / 3, 1)};
}

Options Reader::Read(const QStringList& arguments) {
  parser_.setApplicationDescription(
      "Watches projectors, and tells a metrics store and a message broker of them.");
  parser_.addOptions(
      {help_, profiles_, share_, tags_, interval_, compare_, notices_, listen_, textFile_});
  broker_.AddTo(parser_);
  parser_.addOptions({prefix_, discovery_, takeover_, allow_, perMinute_, language_});
  if (!parser_.parse(arguments)) throw WrongOption{parser_.errorText()};
  if (const QStringList rest = parser_.positionalArguments(); !rest.isEmpty()) {
    throw WrongOption{QStringLiteral("unexpected argument '%1'").arg(rest.first())};
  }
  Options options;
  if (parser_.isSet(help_)) {
    options.help = parser_.helpText();
    return options;
  }
  options.profiles = parser_.value(profiles_);
  if (options.profiles.isEmpty()) throw WrongOption{QStringLiteral("--profiles is missing")};
  options.share = ReadShare();
  constexpr double kShortestInterval = 5;
  options.interval = Seconds(interval_, kShortestInterval);
  if (parser_.isSet(notices_) && !options.notices.setAddress(parser_.value(notices_))) {
    ThrowWrong(parser_, notices_, QStringLiteral("is no numeric address"));
  }
  options.snapshots = parser_.value(compare_);
  if (parser_.isSet(compare_) && !QDir(options.snapshots).exists()) {
    ThrowWrong(parser_, compare_, QStringLiteral("is no folder"));
  }
  ReadListener(options);
  options.broker = broker_.Read(parser_);
  if (parser_.isSet(allow_) && !options.broker) {
    throw WrongOption{QStringLiteral("--allow-commands needs --broker")};
  }
  options.prefix = Prefix(prefix_);
  options.discoveryPrefix = parser_.value(discovery_) == kNone ? QByteArray() : Prefix(discovery_);
  options.takeover = Seconds(takeover_, 1);
  options.commands = ReadCommands();
  bool isNumber = false;
  options.language = parser_.value(language_).toUInt(&isNumber);
  if (!isNumber) ThrowWrong(parser_, language_, QStringLiteral("is no number"));
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
