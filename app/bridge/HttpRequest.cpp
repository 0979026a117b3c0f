#include "app/bridge/HttpRequest.h"

#include <algorithm>

#include <QList>

namespace {

constexpr int kOk = 200;
constexpr int kBadRequest = 400;
constexpr int kNoMethod = 405;
constexpr int kTooLarge = 431;
constexpr int kOtherVersion = 505;

const char* ReasonOf(int status) {
  switch (status) {
    case kOk:
      return "OK";
    case 404:
      return "Not Found";
    case kNoMethod:
      return "Method Not Allowed";
    case kTooLarge:
      return "Request Header Fields Too Large";
    case 503:
      return "Service Unavailable";
    case kOtherVersion:
      return "HTTP Version Not Supported";
    default:
      return "Bad Request";
  }
}

}  // namespace

void HttpRequest::Take(std::string_view bytes) {
  if (IsComplete()) return;
  const qsizetype searched = std::max<qsizetype>(head_.size() - 3, 0);
  const auto room = static_cast<std::size_t>(kLongest + 1 - head_.size());
  const std::string_view taken = bytes.substr(0, room);
  head_.append(taken.data(), static_cast<qsizetype>(taken.size()));
  if (const auto end = head_.indexOf("\r\n\r\n", searched); end >= 0) {
    head_.truncate(end);
    status_ = Read();
  } else if (head_.size() > kLongest) {
    status_ = kTooLarge;
  }
}

/// The status.
int HttpRequest::Read() {
  const auto line = head_.split('\r').first().split(' ');
  if (line.size() != 3 || !line[1].startsWith('/')) return kBadRequest;
  if (line[2] != "HTTP/1.1" && line[2] != "HTTP/1.0") {
    return line[2].startsWith("HTTP/") ? kOtherVersion : kBadRequest;
  }
  isHead_ = line[0] == "HEAD";
  if (!isHead_ && line[0] != "GET") return kNoMethod;
  const auto mark = line[1].indexOf('?');
  path_ = mark < 0 ? line[1] : line[1].left(mark);
  if (mark >= 0) query_ = line[1].mid(mark + 1);
  return kOk;
}

QByteArray HttpRequest::Parameter(std::string_view name) const {
  for (const QByteArray& part : query_.split('&')) {
    const auto equals = part.indexOf('=');
    const QByteArray key = equals < 0 ? part : part.left(equals);
    if (key != QByteArray(name.data(), static_cast<qsizetype>(name.size()))) continue;
    QByteArray value = equals < 0 ? QByteArray("") : part.mid(equals + 1);
    return QByteArray::fromPercentEncoding(value.replace('+', ' '));
  }
  return {};
}

QByteArray HttpAnswerHead(int status, qsizetype size) {
  QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + ' ' + ReasonOf(status) +
                    "\r\nContent-Type: text/plain; version=0.0.4; charset=utf-8"
                    "\r\nContent-Length: " +
                    QByteArray::number(size) + "\r\nConnection: close\r\n";
  if (status == kNoMethod) head += "Allow: GET, HEAD\r\n";
  return head + "\r\n";
}
