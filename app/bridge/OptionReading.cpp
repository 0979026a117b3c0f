#include "app/bridge/OptionReading.h"

#include <QFile>

void ThrowWrong(const QCommandLineParser& parser, const QCommandLineOption& option,
                const QString& what) {
  throw WrongOption{"--" + option.names().constFirst() + ": " + what.arg(parser.value(option))};
}

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

QByteArray FirstLine(const QString& path) {
  constexpr qsizetype kLongestSecret = 4096;
  if (path.isEmpty()) return {};
  QFile file(path);
  if (!file.open(QFile::ReadOnly)) {
    throw WrongOption{BridgeOptions::tr("cannot read %1: %2").arg(path, file.errorString())};
  }
  QByteArray line = file.readLine(kLongestSecret).trimmed();
  if (line.isEmpty()) throw WrongOption{BridgeOptions::tr("%1 is empty").arg(path)};
  return line;
}
