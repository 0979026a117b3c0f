#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include <QHostAddress>
#include <QString>
#include <QStringList>

#include "app/bridge/Broker.h"
#include "app/bridge/CommandDesk.h"
#include "app/bridge/Share.h"

/// What the command line says.
struct Options {
  QString profiles{};
  Share share{};
  std::chrono::milliseconds interval{60'000};
  QString snapshots{};     ///< Folder of the snapshots to compare with; empty for none.
  QHostAddress notices{};  ///< Where to listen for status notices; null for nowhere.

  bool listens = true;
  QHostAddress listenAddress{QHostAddress::LocalHost};
  quint16 listenPort = 9550;
  QString textFile{};  ///< Empty for none.

  std::optional<BrokerAddress> broker{};
  QByteArray prefix = "projectors";
  QByteArray discoveryPrefix = "homeassistant";  ///< Empty for no discovery.
  std::chrono::milliseconds takeover{30'000};

  CommandDesk::Rules commands{};
  std::uint32_t language = 0x0409;  ///< Of names in discovery messages.

  QString help{};   ///< Printed instead of starting; empty otherwise.
  QString error{};  ///< One line; empty when all is well.
};

/// Reads the command line, and the files with user and password.
Options ParseOptions(const QStringList& arguments);
