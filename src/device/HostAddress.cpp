#include "device/HostAddress.h"

#include <algorithm>

#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

namespace AdvancedControl {

namespace {

constexpr std::size_t kLongestHost = 253;  // in bytes; the limit of the domain name system

}  // namespace

bool IsHostAddress(std::string_view text) {
  if (text.empty() || text.size() > kLongestHost) return false;
  const QString host = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  if (host.contains(u':')) {
    return QHostAddress(host).protocol() == QAbstractSocket::IPv6Protocol;
  }
  // A text that ends in a number must be a complete IPv4 address with four numbers. Programs
  // disagree on whether a zero in front of one makes it octal.
  const QStringList labels = host.split(u'.');
  const auto isNumber = [](const QString& label) {
    return !label.isEmpty() && std::ranges::all_of(label, [](QChar c) { return c.isDigit(); });
  };
  if (isNumber(labels.back())) {
    static const QRegularExpression kZero(QStringLiteral("(^|\\.)0[0-9]"));
    return labels.size() == 4 && !QHostAddress(host).isNull() && !host.contains(kZero);
  }
  // Letters of any language are allowed, because names are looked up in their ASCII form, which
  // only a valid name has.
  return !QUrl::toAce(host).isEmpty();
}

}  // namespace AdvancedControl
