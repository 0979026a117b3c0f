#include "app/profiles/PjLinkCache.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QUrl>

#include "device/protocol/PjLinkLine.h"
#include "fleet/WholeFile.h"

namespace {

constexpr int kVersion = 1;
constexpr qint64 kHoldsFor = 24LL * 60 * 60;  // seconds
constexpr qint64 kLongest = 64LL * 1024;
constexpr qsizetype kLongestName = 512;

QString Folder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
         QStringLiteral("/advanced-control/pjlink");
}

QString PathOf(const std::string& address) {
  const QByteArray name = QUrl::toPercentEncoding(QString::fromStdString(address));
  return Folder() + u'/' + QString::fromLatin1(name) + QStringLiteral(".json");
}

}  // namespace

PjLinkFacts ReadPjLinkCache(const std::string& address) {
  QFile file(PathOf(address));
  if (!file.open(QFile::ReadOnly)) return {};
  const QJsonObject json = QJsonDocument::fromJson(file.read(kLongest)).object();
  const qint64 age = QDateTime::currentSecsSinceEpoch() - json["asked"].toInteger();
  if (json["version"].toInt() != kVersion || age < 0 || age > kHoldsFor) return {};
  const QString protocolClass = json["class"].toString();
  if (protocolClass != QStringLiteral("1") && protocolClass != QStringLiteral("2")) return {};
  PjLinkFacts facts{.protocolClass = protocolClass[0].toLatin1()};
  for (const QJsonValue input : json["inputs"].toArray()) {
    const auto number = PjLink::InputNumber(input["code"].toString().toStdString());
    const QString name = input["name"].toString();
    const bool isSound = number && !name.isEmpty() && name.size() <= kLongestName &&
                         facts.inputs.size() < SourceList::kCapacity;
    if (!isSound) return {};
    facts.inputs.push_back({*number, name.toStdString()});
  }
  return facts;
}

void WritePjLinkCache(const std::string& address, const PjLinkFacts& facts) {
  QJsonArray inputs;
  for (const PjLinkInput& input : facts.inputs) {
    const std::string code = PjLink::InputCode(input.number).value_or("");
    inputs.append(QJsonObject{{"code", QString::fromStdString(code)},
                              {"name", QString::fromStdString(input.name)}});
  }
  const QJsonObject json{{"version", kVersion},
                         {"asked", QDateTime::currentSecsSinceEpoch()},
                         {"class", QString(QLatin1Char(facts.protocolClass.value_or('1')))},
                         {"inputs", inputs}};
  QDir().mkpath(Folder());
  WriteWholeFile(PathOf(address), QJsonDocument(json).toJson());
}
