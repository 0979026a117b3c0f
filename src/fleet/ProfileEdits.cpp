#include "fleet/ProfileEdits.h"

#include <algorithm>
#include <utility>

#include <QJsonObject>

namespace AdvancedControl {

const QByteArray ProfileEdits::kNoProfiles = "{\"projectors\": [\n  \n]}\n";

ProfileEdits::ProfileEdits(const QByteArray& text) {
  const auto elements = JsonEdit::Elements(text, {"projectors"});
  if (elements.empty()) {
    const qsizetype place = text.indexOf('[') + 1;
    const qsizetype end = text.indexOf(']');
    head_ = text.left(place) + "\n  ";
    tail_ = '\n' + text.mid(end);
    separator_ = ",\n  ";
    return;
  }
  head_ = text.left(elements.front().begin);
  tail_ = text.mid(elements.back().end);
  qsizetype end = elements.front().begin;
  for (const auto& element : elements) {
    entries_.push_back(
        {text.mid(end, element.begin - end), text.mid(element.begin, element.end - element.begin)});
    end = element.end;
  }
  const qsizetype bracket = head_.lastIndexOf('[');
  separator_ = entries_.size() > 1 ? entries_.back().before : ',' + head_.mid(bracket + 1);
  if (separator_ == ",") separator_ = ", ";
}

void ProfileEdits::Change(std::size_t projector, const JsonEdit::Members& members) {
  QByteArray& text = entries_[projector].text;
  for (const JsonEdit::Member& member : members) text = JsonEdit::SetMember(text, {}, member);
}

void ProfileEdits::Add(const JsonEdit::Members& members) {
  entries_.push_back({separator_, JsonEdit::Write(members)});
}

QByteArray ProfileEdits::Text() const {
  qsizetype size = head_.size() + tail_.size();
  for (const Entry& entry : entries_) size += entry.before.size() + entry.text.size();
  QByteArray text;
  text.reserve(size);
  text += head_;
  bool isFirst = true;
  for (const Entry& entry : entries_) {
    if (!entry.isThere) continue;
    // unreachable: something stands before every entry but the file's first
    if (!isFirst) text += entry.before.isEmpty() ? separator_ : entry.before;
    text += entry.text;
    isFirst = false;
  }
  return text + tail_;
}

JsonEdit::Members WithIdentity(JsonEdit::Members members) {
  const QString key = QStringLiteral("identity");
  if (std::ranges::find(members, key, &JsonEdit::Member::key) == members.end()) {
    members.push_back({key, QString::fromStdString(MakeIdentity())});
  }
  return members;
}

QJsonValue ConnectionValue(const ProfileConnection& connection) {
  const QString address = QString::fromStdString(connection.address);
  if (connection.isNetwork) {
    QJsonObject network{{"address", address}, {"port", connection.port}};
    if (!connection.secret.empty()) network["secret"] = QString::fromStdString(connection.secret);
    return QJsonObject{{"network", network}};
  }
  QJsonObject serial;
  if (address.isEmpty()) {
    serial["port"] = connection.port + 1;
  } else {
    serial["device"] = address;
  }
  if (connection.baud != 0) serial["baud"] = connection.baud;
  return QJsonObject{{"serial", serial}};
}

QString LinkName(ProjectorLink link) {
  switch (link) {
    case ProjectorLink::Network:
      return QStringLiteral("network");
    case ProjectorLink::Serial:
      return QStringLiteral("serial");
    case ProjectorLink::PjLink:
      return QStringLiteral("pjlink");
    case ProjectorLink::Simulated:
      break;
  }
  return QStringLiteral("simulated");
}

}  // namespace AdvancedControl
