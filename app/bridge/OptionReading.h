#pragma once

#include <optional>
#include <utility>

#include <QByteArray>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>

// Helpers for reading options.

/// `BridgeOptions::tr` gives the texts about options in the user's language.
struct BridgeOptions {
  Q_DECLARE_TR_FUNCTIONS(BridgeOptions)
};

/// Thrown while options are read, caught before the reader returns.
struct WrongOption {
  QString error;
};

/// `what` has %1 for the option's value.
[[noreturn]] void ThrowWrong(const QCommandLineParser& parser, const QCommandLineOption& option,
                             const QString& what);

/// "HOST:PORT", "[IPv6]:PORT" or "HOST", which has `port`. Nothing for any other text.
std::optional<std::pair<QString, quint16>> HostAndPort(const QString& text, quint16 port);

/// Empty without a path. Throws `WrongOption` for a file that cannot be read, or is empty.
QByteArray FirstLine(const QString& path);
