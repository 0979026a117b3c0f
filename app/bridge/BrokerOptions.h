#pragma once

#include <optional>

#include <QCommandLineParser>

#include "app/bridge/Broker.h"
#include "app/bridge/OptionReading.h"

/// The options that say how to reach the message broker.
class BrokerOptions {
 public:
  void AddTo(QCommandLineParser& parser) const;
  /// Nothing without a broker. Throws `WrongOption`.
  std::optional<BrokerAddress> Read(const QCommandLineParser& parser) const;

 private:
  const QCommandLineOption broker_{
      "broker", BridgeOptions::tr("Send messages to the MQTT broker at <host:port>."),
      BridgeOptions::tr("host:port")};
  const QCommandLineOption mqtt_{"mqtt", BridgeOptions::tr("Version of MQTT, 3 (3.1.1) or 5."),
                                 BridgeOptions::tr("version"), "3"};
  const QCommandLineOption userFile_{
      "user-file", BridgeOptions::tr("The first line of <file> is the user at the broker."),
      BridgeOptions::tr("file")};
  const QCommandLineOption passwordFile_{
      "password-file", BridgeOptions::tr("The first line of <file> is the password at the broker."),
      BridgeOptions::tr("file")};
  const QCommandLineOption tls_{
      "tls", BridgeOptions::tr("Encrypt, and trust the authorities that the system trusts.")};
  const QCommandLineOption caFile_{
      "ca-file", BridgeOptions::tr("Encrypt, and trust the authorities in <file>."),
      BridgeOptions::tr("file")};
  const QCommandLineOption certFile_{
      "cert-file", BridgeOptions::tr("The certificate of this client."), BridgeOptions::tr("file")};
  const QCommandLineOption keyFile_{"key-file", BridgeOptions::tr("Its key."),
                                    BridgeOptions::tr("file")};
};
