#include "app/bridge/Options.h"

#include <algorithm>
#include <cmath>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

constexpr double kLongest = 86'400;  // seconds
constexpr qsizetype kLongestSecret = 4096;
constexpr int kTlsPort = 8883;
constexpr const char* kNone = "none";

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(BridgeOptions)
};

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
  /// `what` has %1 for the option's value.
  [[noreturn]] void ThrowWrong(const QCommandLineOption& option, const QString& what) const {
    throw WrongOption{"--" + option.names().constFirst() + ": " + what.arg(parser_.value(option))};
  }
  std::chrono::milliseconds Seconds(const QCommandLineOption& option, double least) const;
  QByteArray Prefix(const QCommandLineOption& option) const;
  Share ReadShare() const;
  void ReadListener(Options& options) const;
  std::optional<BrokerAddress> ReadBroker() const;
  CommandDesk::Rules ReadCommands() const;

  QCommandLineParser parser_;
  const QCommandLineOption help_{{"h", "help"}, Texts::tr("Display this help.")};
  const QCommandLineOption profiles_{"profiles", Texts::tr("The projectors are those of <file>."),
                                     Texts::tr("file")};
  const QCommandLineOption share_{
      "share", Texts::tr("Watch one of several shares: 2/5 is the second of five."),
      Texts::tr("share"), "1/1"};
  const QCommandLineOption tags_{
      "tag", Texts::tr("Watch only projectors with <tag>, or one of several."), Texts::tr("tag")};
  const QCommandLineOption interval_{"interval",
                                     Texts::tr("Visit each projector every <seconds>, at least 5."),
                                     Texts::tr("seconds"), "60"};
  const QCommandLineOption compare_{
      "compare", Texts::tr("Once a day, compare each projector with its snapshot in <folder>."),
      Texts::tr("folder")};
  const QCommandLineOption notices_{
      "notices", Texts::tr("Listen at <address> for the status notices of projectors."),
      Texts::tr("address")};
  const QCommandLineOption listen_{
      "listen", Texts::tr("Serve metrics at <address:port>; 'none' for nowhere."),
      Texts::tr("address:port"), "127.0.0.1:9550"};
  const QCommandLineOption textFile_{
      "text-file",
      Texts::tr("Write metrics to <file> every 15 seconds, for a collector of text files."),
      Texts::tr("file")};
  const QCommandLineOption broker_{"broker",
                                   Texts::tr("Send messages to the MQTT broker at <host:port>."),
                                   Texts::tr("host:port")};
  const QCommandLineOption mqtt_{"mqtt", Texts::tr("Version of MQTT, 3 (3.1.1) or 5."),
                                 Texts::tr("version"), "3"};
  const QCommandLineOption userFile_{
      "user-file", Texts::tr("The first line of <file> is the user at the broker."),
      Texts::tr("file")};
  const QCommandLineOption passwordFile_{
      "password-file", Texts::tr("The first line of <file> is the password at the broker."),
      Texts::tr("file")};
  const QCommandLineOption tls_{
      "tls", Texts::tr("Encrypt, and trust the authorities that the system trusts.")};
  const QCommandLineOption caFile_{
      "ca-file", Texts::tr("Encrypt, and trust the authorities in <file>."), Texts::tr("file")};
  const QCommandLineOption certFile_{"cert-file", Texts::tr("The certificate of this client."),
                                     Texts::tr("file")};
  const QCommandLineOption keyFile_{"key-file", Texts::tr("Its key."), Texts::tr("file")};
  const QCommandLineOption prefix_{"topic", Texts::tr("The first level of all topics."),
                                   Texts::tr("topic"), "projectors"};
  const QCommandLineOption discovery_{
      "discovery", Texts::tr("The first level of discovery topics; 'none' for no discovery."),
      Texts::tr("topic"), "homeassistant"};
  const QCommandLineOption takeover_{
      "takeover", Texts::tr("Take the share of a bridge that has said nothing for <seconds>."),
      Texts::tr("seconds"), "30"};
  const QCommandLineOption allow_{
      "allow-commands",
      Texts::tr(
          "Settings that may be commanded: keys or patterns, separated by commas; 'power' is the "
          "power. Without it nothing may be."),
      Texts::tr("keys")};
  const QCommandLineOption perMinute_{"commands-per-minute",
                                      Texts::tr("Commands that each projector takes in a minute."),
                                      Texts::tr("n"), "30"};
  const QCommandLineOption language_{
      "language",
      Texts::tr("Names in discovery messages, and messages of this program, are in the language "
                "<name>, such as de or zh-TW."),
      Texts::tr("name"), "1033"};
};

std::chrono::milliseconds Reader::Seconds(const QCommandLineOption& option, double least) const {
  bool isNumber = false;
  const double seconds = parser_.value(option).toDouble(&isNumber);
  if (!isNumber || !(seconds >= least && seconds <= kLongest)) {
    ThrowWrong(option, Texts::tr("'%1' is no time from %2 seconds to a day")
                           .arg(QStringLiteral("%1"), QString::number(least)));
  }
  return std::chrono::milliseconds(std::lround(1000 * seconds));
}

/// Levels without wildcards, and no empty one.
QByteArray Reader::Prefix(const QCommandLineOption& option) const {
  const QString text = parser_.value(option);
  for (const QString& level : text.split('/')) {
    if (level.isEmpty() || level.contains('+') || level.contains('#')) {
      ThrowWrong(option, Texts::tr("'%1' is no topic"));
    }
  }
  return text.toUtf8();
}

Share Reader::ReadShare() const {
  auto share = ParseShare(parser_.value(share_).toStdString());
  if (!share) ThrowWrong(share_, Texts::tr("'%1' is no share such as 2/5"));
  for (const QString& tag : parser_.values(tags_)) share->tags.push_back(tag.toStdString());
  return *share;
}

void Reader::ReadListener(Options& options) const {
  options.textFile = parser_.value(textFile_);
  options.listens = parser_.value(listen_) != kNone;
  if (!options.listens) return;
  const auto place = HostAndPort(parser_.value(listen_), options.listenPort);
  if (!place || !options.listenAddress.setAddress(place->first)) {
    ThrowWrong(listen_, Texts::tr("'%1' is no numeric address with a port"));
  }
  options.listenPort = place->second;
}

QByteArray FirstLine(const QString& path) {
  if (path.isEmpty()) return {};
  QFile file(path);
  if (!file.open(QFile::ReadOnly)) {
    throw WrongOption{Texts::tr("cannot read %1: %2").arg(path, file.errorString())};
  }
  QByteArray line = file.readLine(kLongestSecret).trimmed();
  if (line.isEmpty()) throw WrongOption{Texts::tr("%1 is empty").arg(path)};
  return line;
}

std::optional<BrokerAddress> Reader::ReadBroker() const {
  if (!parser_.isSet(broker_)) {
    for (const auto* option :
         {&userFile_, &passwordFile_, &tls_, &caFile_, &certFile_, &keyFile_, &allow_}) {
      if (parser_.isSet(*option)) {
        throw WrongOption{Texts::tr("--%1 needs --broker").arg(option->names().constFirst())};
      }
    }
    return {};
  }
  BrokerAddress broker;
  broker.usesTls = parser_.isSet(tls_) || parser_.isSet(caFile_) || parser_.isSet(certFile_);
  if (broker.usesTls) broker.port = kTlsPort;
  const auto place = HostAndPort(parser_.value(broker_), static_cast<quint16>(broker.port));
  if (!place || place->second == 0) ThrowWrong(broker_, Texts::tr("'%1' is no host with a port"));
  broker.host = place->first;
  broker.port = place->second;
  const QString version = parser_.value(mqtt_);
  if (version != "3" && version != "5") ThrowWrong(mqtt_, Texts::tr("'%1' is neither 3 nor 5"));
  broker.version = version == "5" ? 5 : 4;
  if (parser_.isSet(certFile_) != parser_.isSet(keyFile_)) {
    throw WrongOption{Texts::tr("--cert-file and --key-file need each other")};
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
      throw WrongOption{Texts::tr("--allow-commands: '%1' is no setting that may be commanded")
                            .arg(key.trimmed())};
    }
  }
  constexpr int kMost = 6000;
  const int perMinute = parser_.value(perMinute_).toInt();
  if (perMinute < 1 || perMinute > kMost) {
    ThrowWrong(perMinute_, Texts::tr("'%1' is no number from 1 to %2")
                               .arg(QStringLiteral("%1"), QString::number(kMost)));
  }
  return {.keys = KeyRules(std::move(keys)),
          .perMinute = perMinute,
          .burst = std::max(perMinute / 3, 1)};
}

Options Reader::Read(const QStringList& arguments) {
  parser_.setApplicationDescription(
      Texts::tr("Watches projectors, and tells a metrics store and a message broker of them."));
  parser_.addOptions({help_,         profiles_, share_,    tags_,      interval_, compare_,
                      notices_,      listen_,   textFile_, broker_,    mqtt_,     userFile_,
                      passwordFile_, tls_,      caFile_,   certFile_,  keyFile_,  prefix_,
                      discovery_,    takeover_, allow_,    perMinute_, language_});
  if (!parser_.parse(arguments)) throw WrongOption{parser_.errorText()};
  if (const QStringList rest = parser_.positionalArguments(); !rest.isEmpty()) {
    throw WrongOption{Texts::tr("unexpected argument '%1'").arg(rest.first())};
  }
  Options options;
  if (parser_.isSet(help_)) {
    options.help = parser_.helpText();
    return options;
  }
  options.profiles = parser_.value(profiles_);
  if (options.profiles.isEmpty()) throw WrongOption{Texts::tr("--profiles is missing")};
  options.share = ReadShare();
  constexpr double kShortestInterval = 5;
  options.interval = Seconds(interval_, kShortestInterval);
  if (parser_.isSet(notices_) && !options.notices.setAddress(parser_.value(notices_))) {
    ThrowWrong(notices_, Texts::tr("'%1' is no numeric address"));
  }
  options.snapshots = parser_.value(compare_);
  if (parser_.isSet(compare_) && !QDir(options.snapshots).exists()) {
    ThrowWrong(compare_, Texts::tr("'%1' is no folder"));
  }
  ReadListener(options);
  options.broker = ReadBroker();
  options.prefix = Prefix(prefix_);
  options.discoveryPrefix = parser_.value(discovery_) == kNone ? QByteArray() : Prefix(discovery_);
  options.takeover = Seconds(takeover_, 1);
  options.commands = ReadCommands();
  const auto language =
      FindLanguage(CatalogLanguages(CatalogFolders()), parser_.value(language_).toStdString());
  if (!language) ThrowWrong(language_, Texts::tr("there are no texts in '%1'"));
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
