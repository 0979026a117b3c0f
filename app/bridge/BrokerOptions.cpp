#include "app/bridge/BrokerOptions.h"

#include <QFile>

void BrokerOptions::AddTo(QCommandLineParser& parser) const {
  parser.addOptions({broker_, mqtt_, userFile_, passwordFile_, tls_, caFile_, certFile_, keyFile_});
}

std::optional<BrokerAddress> BrokerOptions::Read(const QCommandLineParser& parser) const {
  if (!parser.isSet(broker_)) {
    for (const auto* option :
         {&userFile_, &passwordFile_, &tls_, &caFile_, &certFile_, &keyFile_}) {
      if (parser.isSet(*option)) {
        throw WrongOption{
            BridgeOptions::tr("--%1 needs --broker").arg(option->names().constFirst())};
      }
    }
    return {};
  }
  constexpr int kTlsPort = 8883;
  BrokerAddress broker;
  broker.usesTls = parser.isSet(tls_) || parser.isSet(caFile_) || parser.isSet(certFile_);
  if (broker.usesTls) broker.port = kTlsPort;
  const auto place = HostAndPort(parser.value(broker_), static_cast<quint16>(broker.port));
  if (!place || place->second == 0)
    ThrowWrong(parser, broker_, BridgeOptions::tr("'%1' is not a host with a port"));
  broker.host = place->first;
  broker.port = place->second;
  const QString version = parser.value(mqtt_);
  if (version != "3" && version != "5")
    ThrowWrong(parser, mqtt_, BridgeOptions::tr("'%1' is neither 3 nor 5"));
  broker.version = version == "5" ? 5 : 4;
  if (parser.isSet(certFile_) != parser.isSet(keyFile_)) {
    throw WrongOption{BridgeOptions::tr("--cert-file and --key-file need each other")};
  }
  broker.caFile = QFile::encodeName(parser.value(caFile_));
  broker.certFile = QFile::encodeName(parser.value(certFile_));
  broker.keyFile = QFile::encodeName(parser.value(keyFile_));
  broker.user = FirstLine(parser.value(userFile_));
  broker.password = FirstLine(parser.value(passwordFile_));
  return broker;
}
