#pragma once

#include <optional>

#include <QCommandLineParser>

#include "app/bridge/Broker.h"

/// The options that say how to reach the message broker.
class BrokerOptions {
 public:
  void AddTo(QCommandLineParser& parser) const;
  /// Nothing without a broker. Throws `WrongOption`.
  std::optional<BrokerAddress> Read(const QCommandLineParser& parser) const;

 private:
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
};
