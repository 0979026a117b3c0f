#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <utility>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "settings/Range.h"
#include "snapshots/Snapshot.h"

namespace {

/// Thrown while parsing; caught before `ReadSnapshot` returns.
struct WrongSnapshot {
  Q_DECLARE_TR_FUNCTIONS(Snapshot)

 public:
  QString path;  ///< Path of the value, as in `SnapshotContents`.
  QString message;
  QString of{};  ///< Key of the setting that contains it, if known.
};

}  // namespace

namespace AdvancedControl {

namespace {

constexpr const char* kFormat = "advanced-control-settings";
constexpr int kVersion = 1;
constexpr qsizetype kMaximumBytes = qsizetype{4} << 20;
constexpr int kMaximumSettings = 10'000;
constexpr qsizetype kMaximumText = 1024;
/// Device values have 16 bits, signed or not.
constexpr Range kDeviceValues{std::numeric_limits<std::int16_t>::min(),
                              std::numeric_limits<std::uint16_t>::max()};
/// A profile may give a model any such number.
constexpr Range kModelNumbers{std::numeric_limits<std::int32_t>::min(),
                              std::numeric_limits<std::int32_t>::max()};

QString Wide(const std::string& text) { return QString::fromStdString(text); }

/// A value as in the file, shortened and on one line, for an error.
QString Found(const QJsonValue& value) {
  constexpr qsizetype kMost = 40;
  const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  const QString text = QString::fromUtf8(json.mid(1, json.size() - 2));
  return text.size() <= kMost ? text : text.left(kMost) + QStringLiteral("...");
}

int Integer(const QJsonObject& object, const QString& key, const QString& place,
            const Range& range = kDeviceValues, const QString& of = {}) {
  if (!object.contains(key)) {
    throw WrongSnapshot{place + key, WrongSnapshot::tr("a whole number is missing here"), of};
  }
  const double number = object[key].toDouble(0.5);
  if (number != std::trunc(number) || number < range.minimum || number > range.maximum) {
    throw WrongSnapshot{place + key,
                        WrongSnapshot::tr("must be a whole number from %1 to %2, and is %3")
                            .arg(range.minimum)
                            .arg(range.maximum)
                            .arg(Found(object[key])),
                        of};
  }
  return static_cast<int>(number);
}

std::string Text(const QJsonObject& object, const QString& key, const QString& place) {
  const QString text = object[key].toString();
  const auto isControl = [](QChar character) { return character < QLatin1Char(' '); };
  // Texts are shown on terminals, so they must not contain control characters.
  if (text.isEmpty() || text.size() > kMaximumText || std::ranges::any_of(text, isControl)) {
    throw WrongSnapshot{place + key, WrongSnapshot::tr("must be a line of text")};
  }
  return text.toStdString();
}

QJsonObject Object(const QJsonValue& value, const QString& place) {
  if (!value.isObject()) throw WrongSnapshot{place, WrongSnapshot::tr("must be an object")};
  return value.toObject();
}

std::vector<SavedSetting> Settings(const QJsonObject& file, const QString& member) {
  if (!file[member].isArray()) {
    throw WrongSnapshot{member, WrongSnapshot::tr("must be an array")};
  }
  const QJsonArray array = file[member].toArray();
  if (array.size() > kMaximumSettings) {
    throw WrongSnapshot{member,
                        WrongSnapshot::tr("has more than %1 entries").arg(kMaximumSettings)};
  }
  std::vector<SavedSetting> settings;
  for (int i = 0; i < array.size(); ++i) {
    const QString place = QStringLiteral("%1[%2].").arg(member).arg(i);
    const QJsonObject entry = Object(array[i], place.chopped(1));
    SavedSetting& setting = settings.emplace_back();
    setting.key = Text(entry, "key", place);
    setting.value = Integer(entry, "value", place, kDeviceValues, Wide(setting.key));
    setting.text = entry["text"].toString().toStdString();
    if (entry.contains("source")) {
      setting.source = Integer(entry, "source", place, kDeviceValues, Wide(setting.key));
    }
  }
  return settings;
}

Snapshot Parse(const QJsonObject& file) {
  if (file["format"].toString() != QLatin1String(kFormat)) {
    throw WrongSnapshot{"format", WrongSnapshot::tr("this is not a file of saved settings")};
  }
  if (Integer(file, "version", {}) != kVersion) {
    throw WrongSnapshot{"version", WrongSnapshot::tr("only version %1 is known").arg(kVersion)};
  }
  const QJsonObject model = Object(file["model"], "model");
  Snapshot snapshot{.projector = file["projector"].toString().toStdString(),
                    .model = model["name"].toString().toStdString(),
                    .dialogType = Integer(model, "dialogType", "model.", kModelNumbers),
                    .modelCode = Integer(model, "modelCode", "model.", kModelNumbers),
                    .time = file["time"].toString().toStdString(),
                    .settings = {}};
  snapshot.settings = Settings(file, "settings");
  snapshot.isUndo = file["undo"].toBool();
  if (file.contains("beforehand")) snapshot.beforehand = Settings(file, "beforehand");
  std::set<std::pair<std::string, std::optional<int>>> keys;
  for (std::size_t i = 0; i < snapshot.settings.size(); ++i) {
    const SavedSetting& setting = snapshot.settings[i];
    if (!keys.emplace(setting.key, setting.source).second) {
      throw WrongSnapshot{QStringLiteral("settings[%1].key").arg(i),
                          WrongSnapshot::tr("\"%1\" is here twice").arg(Wide(setting.key))};
    }
  }
  return snapshot;
}

QJsonArray ToJson(const std::vector<SavedSetting>& settings) {
  QJsonArray array;
  for (const SavedSetting& setting : settings) {
    QJsonObject entry{
        {"key", Wide(setting.key)}, {"value", setting.value}, {"text", Wide(setting.text)}};
    if (setting.source) entry["source"] = *setting.source;
    array.append(entry);
  }
  return array;
}

}  // namespace

QByteArray WriteSnapshot(const Snapshot& snapshot) {
  QJsonObject file{{"format", kFormat},
                   {"version", kVersion},
                   {"projector", Wide(snapshot.projector)},
                   {"model", QJsonObject{{"name", Wide(snapshot.model)},
                                         {"dialogType", snapshot.dialogType},
                                         {"modelCode", snapshot.modelCode}}},
                   {"time", Wide(snapshot.time)},
                   {"settings", ToJson(snapshot.settings)}};
  if (!snapshot.beforehand.empty()) file["beforehand"] = ToJson(snapshot.beforehand);
  if (snapshot.isUndo) file["undo"] = true;
  return QJsonDocument(file).toJson();
}

SnapshotContents ReadSnapshot(const QByteArray& text) {
  const auto wrong = [](const QString& error) { return SnapshotContents{{}, error, {}}; };
  if (text.size() > kMaximumBytes) return wrong(WrongSnapshot::tr("is larger than 4 MiB"));
  QJsonParseError syntax;
  const QJsonDocument document = QJsonDocument::fromJson(text, &syntax);
  if (!document.isObject()) {
    if (document.isArray()) return wrong(WrongSnapshot::tr("must hold an object"));
    const auto line = text.left(syntax.offset).count('\n') + 1;
    return wrong(WrongSnapshot::tr("line %1: ").arg(line) + syntax.errorString());
  }
  try {
    return {Parse(document.object()), {}, {}};
  } catch (const WrongSnapshot& error) {
    const QString of = error.of.isEmpty() ? QString() : error.of + ": ";
    return {{}, of + error.path + ": " + error.message, error.path};
  }
}

}  // namespace AdvancedControl
