#include "app/bridge/Options.h"

#include <algorithm>
#include <cmath>

#include <QCommandLineParser>
#include <QDir>
#include <QFile>

namespace {

constexpr double kLongest = 86'400;  // seconds
constexpr qsizetype kLongestSecret = 4096;
constexpr int kTlsPort = 8883;
constexpr const char* kNone = "none";

/// Thrown while options are read, caught before the reader returns.
struct WrongOption {
  QString error;
};

/// "HOST:PORT", "[IPv6]:PORT" or "HOST".
std::optional<std::pair<QString, quint16>> HostAndPort(const QString& text, quint16 port) {
  QString host = text;
  const auto colon = text.lastIndexOf(':');
  const bool hasPort = colon >= 0 && (text.count(':') == 1 || text.contains("]:"));
  if (hasPort) {
    bool isNumber = false;
    port = text.mid(colon + 1).toUShort(&isNumber);
    if (!isNumber) return {};
    host = text.left(colon);
  }
  if (host.startsWith('[') && host.endsWith(']')) host = host.mid(1, host.size() - 2);
  if (host.isEmpty()) return {};
  return std::pair(host, port);
}

class Reader {
 public:
  Options Read(const QStringList& arguments);

 private:
  [[noreturn]] void ThrowWrong(const QCommandLineOption& option, const QString& what) const {
    throw WrongOption{QStringLiteral("--%1: '%2' %3")
                          .arg(option.names().constFirst(), parser_.value(option), what)};
  }
  std::chrono::milliseconds Seconds(const QCommandLineOption& option, double least) const;
  QByteArray Prefix(const QCommandLineOption& option) const;
  Share ReadShare() const;
  void ReadListener(Options& options) const;
  std::optional<BrokerAddress> ReadBroker() const;
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
  const QCommandLineOption broker_{"broker", "Send messages to the MQTT broker at <host:port>.",
                                   "host:port"};
  const QCommandLineOption mqtt_{"mqtt", "Version of MQTT, 3 (3.1.1) or 5.", "version", "3"};
  const QCommandLineOption userFile_{"user-file",
                                     "The first line of <file> is the user at the broker.", "file"};
  const QCommandLineOption passwordFile_{
      "password-file", "The first line of <file> is the password at the broker.", "file"};
  const QCommandLineOption tls_{"tls",
                                "Encrypt, and trust the authorities that the system trusts."};
  const QCommandLineOption caFile_{"ca-file", "Encrypt, and trust the authorities in <file>.",
                                   "file"};
  const QCommandLineOption certFile_{"cert-file", "The certificate of this client.", "file"};
  const QCommandLineOption keyFile_{"key-file", "Its key.", "file"};
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
    ThrowWrong(option, QStringLiteral("is no time from %1 seconds to a day").arg(least));
  }
  return std::chrono::milliseconds(std::lround(1000 * seconds));
}

/// Levels without wildcards, and no empty one.
QByteArray Reader::Prefix(const QCommandLineOption& option) const {
  const QString text = parser_.value(option);
  for (const QString& level : text.split('/')) {
    if (level.isEmpty() || level.contains('+') || level.contains('#')) {
      ThrowWrong(option, QStringLiteral("is no topic"));
    }
  }
  return text.toUtf8();
}

Share Reader::ReadShare() const {
  auto share = ParseShare(parser_.value(share_).toStdString());
  if (!share) ThrowWrong(share_, QStringLiteral("is no share such as 2/5"));
  for (const QString& tag : parser_.values(tags_)) share->tags.push_back(tag.toStdString());
  return *share;
}

void Reader::ReadListener(Options& options) const {
  options.textFile = parser_.value(textFile_);
  options.listens = parser_.value(listen_) != kNone;
  if (!options.listens) return;
  const auto place = HostAndPort(parser_.value(listen_), options.listenPort);
  if (!place || !options.listenAddress.setAddress(place->first)) {
    ThrowWrong(listen_, QStringLiteral("is no numeric address with a port"));
  }
  options.listenPort = place->second;
}

QByteArray FirstLine(const QString& path) {
  if (path.isEmpty()) return {};
  QFile file(path);
  if (!file.open(QFile::ReadOnly)) {
    throw WrongOption{QStringLiteral("cannot read %1: %2").arg(path, file.errorString())};
  }
  QByteArray line = file.readLine(kLongestSecret).trimmed();
  if (line.isEmpty()) throw WrongOption{QStringLiteral("%1 is empty").arg(path)};
  return line;
}

std::optional<BrokerAddress> Reader::ReadBroker() const {
  if (!parser_.isSet(broker_)) {
    for (const auto* option :
         {&userFile_, &passwordFile_, &tls_, &caFile_, &certFile_, &keyFile_, &allow_}) {
      if (parser_.isSet(*option)) {
        throw WrongOption{QStringLiteral("--%1 needs --broker").arg(option->names().constFirst())};
      }
    }
    return {};
  }
  BrokerAddress broker;
  broker.usesTls = parser_.isSet(tls_) || parser_.isSet(caFile_) || parser_.isSet(certFile_);
  if (broker.usesTls) broker.port = kTlsPort;
  const auto place = HostAndPort(parser_.value(broker_), static_cast<quint16>(broker.port));
  if (!place || place->second == 0) ThrowWrong(broker_, QStringLiteral("is no host with a port"));
  broker.host = place->first;
  broker.port = place->second;
  const QString version = parser_.value(mqtt_);
  if (version != "3" && version != "5") ThrowWrong(mqtt_, QStringLiteral("is neither 3 nor 5"));
  broker.version = version == "5" ? 5 : 4;
  if (parser_.isSet(certFile_) != parser_.isSet(keyFile_)) {
    throw WrongOption{QStringLiteral("--cert-file and --key-file need each other")};
  }
  broker.caFile = QFile::encodeName(parser_.value(caFile_));
  broker.certFile = QFile::encodeName(parser_.value(certFile_));
  broker.keyFile = QFile::encodeName(parser_.value(keyFile_));
  broker.user = FirstLine(parser_.value(userFile_));
  broker.password = FirstLine(parser_.value(passwordFile_));
  return broker;
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
    ThrowWrong(perMinute_, QStringLiteral("is no number from 1 to %1").arg(kMost));
  }
  return {.keys = KeyRules(std::move(keys)),
          .perMinute = perMinute,
          .burst = std::max(perMinute / 3, 1)};
}

Options Reader::Read(const QStringList& arguments) {
  parser_.setApplicationDescription(
      "Watches projectors, and tells a metrics store and a message broker of them.");
  parser_.addOptions({help_,         profiles_, share_,    tags_,      interval_, compare_,
                      notices_,      listen_,   textFile_, broker_,    mqtt_,     userFile_,
                      passwordFile_, tls_,      caFile_,   certFile_,  keyFile_,  prefix_,
                      discovery_,    takeover_, allow_,    perMinute_, language_});
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
    ThrowWrong(notices_, QStringLiteral("is no numeric address"));
  }
  options.snapshots = parser_.value(compare_);
  if (parser_.isSet(compare_) && !QDir(options.snapshots).exists()) {
    ThrowWrong(compare_, QStringLiteral("is no folder"));
  }
  ReadListener(options);
  options.broker = ReadBroker();
  options.prefix = Prefix(prefix_);
  options.discoveryPrefix = parser_.value(discovery_) == kNone ? QByteArray() : Prefix(discovery_);
  options.takeover = Seconds(takeover_, 1);
  options.commands = ReadCommands();
  bool isNumber = false;
  options.language = parser_.value(language_).toUInt(&isNumber);
  if (!isNumber) ThrowWrong(language_, QStringLiteral("is no number"));
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
