#include "fleet/ProfileValues.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "device/HostAddress.h"
#include "fleet/JsonLines.h"
#include "simulator/SettingsTable.h"

namespace AdvancedControl {

namespace {

constexpr int kMaximumPort = 65535;
constexpr int kMaximumSerialPort = 256;
constexpr int kMaximumBaud = 4'000'000;
constexpr int kMaximumTags = 32;
constexpr int kMaximumLampHours = 1'000'000;
constexpr std::size_t kLongestText = 256;
constexpr std::size_t kLongestNotes = JsonLines::kMaximumStringBytes;
constexpr int kMaximumDeviceValue = std::numeric_limits<std::uint16_t>::max();

struct NamedLink {
  std::string_view name;
  ProjectorLink link;
};

constexpr NamedLink kLinks[] = {
    {"simulated", ProjectorLink::Simulated},
    {"network", ProjectorLink::Network},
    {"serial", ProjectorLink::Serial},
    {"pjlink", ProjectorLink::PjLink},
};

}  // namespace

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString At(const QString& path, const QString& key) {
  return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

QString At(const QString& path, int index) { return path + QStringLiteral("[%1]").arg(index); }

void CheckKeys(const QJsonObject& object, const QString& path, const QStringList& known,
               const QString& shown) {
  for (auto member = object.begin(); member != object.end(); ++member) {
    if (!known.contains(member.key()) && !member.key().startsWith(QLatin1String("x-"))) {
      throw WrongValue{At(path, member.key()),
                       ProfileFile::tr("unknown key; known are %1")
                           .arg(shown.isEmpty() ? known.join(", ") : shown)};
    }
  }
}

QJsonObject Object(const QJsonValue& value, const QString& path) {
  if (!value.isObject()) throw WrongValue{path, ProfileFile::tr("must be an object")};
  return value.toObject();
}

QJsonArray Array(const QJsonValue& value, const QString& path, int capacity) {
  if (!value.isArray()) throw WrongValue{path, ProfileFile::tr("must be an array")};
  QJsonArray array = value.toArray();
  if (array.size() > capacity) {
    throw WrongValue{
        path,
        ProfileFile::tr("has %1 entries; at most %2 are possible").arg(array.size()).arg(capacity)};
  }
  return array;
}

std::string String(const QJsonValue& value, const QString& path, std::size_t most) {
  std::string text = value.toString().toStdString();
  if (text.empty()) throw WrongValue{path, ProfileFile::tr("must be a text that is not empty")};
  if (text.size() > most) {
    throw WrongValue{path, ProfileFile::tr("is longer than %1 bytes").arg(most)};
  }
  return text;
}

std::string String(const QJsonValue& value, const QString& path) {
  return String(value, path, kLongestText);
}

std::int32_t Integer(const QJsonValue& value, const QString& path, std::int32_t minimum,
                     std::int32_t maximum) {
  const double number = value.toDouble(0.5);
  const auto integer = static_cast<qint64>(std::clamp(number, -1e10, 1e10));
  if (!value.isDouble() || static_cast<double>(integer) != number) {
    throw WrongValue{path, ProfileFile::tr("must be a whole number")};
  }
  if (integer < minimum || integer > maximum) {
    throw WrongValue{
        path, ProfileFile::tr("is %1; it must be %2 to %3").arg(integer).arg(minimum).arg(maximum)};
  }
  return static_cast<std::int32_t>(integer);
}

namespace {

std::string ShortText(const QJsonValue& value, const QString& path) {
  return String(value, path, NameSlot{}.size());
}

NameSlot Slot(const QJsonValue& value, const QString& path) {
  return MakeNameSlot(ShortText(value, path));
}

std::int32_t DeviceValue(const QJsonValue& value, const QString& path) {
  return Integer(value, path, 0, kMaximumDeviceValue);
}

// An entry is a value, a name whose value is its position, or both.
CountedList List(const QJsonValue& value, const QString& path) {
  const QJsonArray array = Array(value, path, CountedList::kCapacity);
  CountedList list{.count = static_cast<std::int32_t>(array.size())};
  for (int i = 0; i < list.count; ++i) {
    const QString entryPath = At(path, i);
    const auto index = static_cast<std::size_t>(i);
    const QJsonValue entry = array[i];
    if (entry.isDouble()) {
      list.values[index] = DeviceValue(entry, entryPath);
    } else if (entry.isString()) {
      list.values[index] = i;
      list.names[index] = Slot(entry, entryPath);
    } else if (entry.isObject()) {
      const QJsonObject object = entry.toObject();
      CheckKeys(object, entryPath, {"value", "name"});
      list.values[index] = DeviceValue(object["value"], At(entryPath, "value"));
      list.names[index] = Slot(object["name"], At(entryPath, "name"));
    } else {
      throw WrongValue{entryPath, ProfileFile::tr("must be a number, a text or an object with "
                                                  "\"value\" and \"name\"")};
    }
  }
  return list;
}

SourceList Sources(const QJsonValue& value, const QString& path) {
  const QJsonArray array = Array(value, path, SourceList::kCapacity);
  SourceList list{.count = static_cast<std::int32_t>(array.size())};
  for (int i = 0; i < list.count; ++i) {
    const QString entryPath = At(path, i);
    const auto index = static_cast<std::size_t>(i);
    const QJsonObject entry = Object(array[i], entryPath);
    CheckKeys(entry, entryPath, {"name", "value", "second"});
    list.names[index] = Slot(entry["name"], At(entryPath, "name"));
    list.firstValues[index] = DeviceValue(entry["value"], At(entryPath, "value"));
    if (entry.contains("second")) {
      list.secondValues[index] = Integer(entry["second"], At(entryPath, "second"));
    }
  }
  return list;
}

std::string Device(const QJsonObject& parameters, const QString& path) {
  if (!parameters.contains("device")) return {};
  const QString devicePath = At(path, "device");
  if (!parameters["device"].toString().startsWith(QLatin1Char('/'))) {
    throw WrongValue{devicePath, ProfileFile::tr("must be a path that begins with /")};
  }
  return ShortText(parameters["device"], devicePath);
}

std::string Address(const QJsonValue& value, const QString& path) {
  std::string address = ShortText(value, path);
  if (!IsHostAddress(address)) {
    throw WrongValue{path, ProfileFile::tr("is neither the name of a host nor an IP address")};
  }
  return address;
}

const QStringList kNetworkKeys{"address", "port", "secret"};
const QStringList kSerialKeys{"port", "baud", "device"};

ProfileConnection Network(const QJsonObject& parameters, const QString& path) {
  CheckKeys(parameters, path, kNetworkKeys);
  ProfileConnection network;
  network.port = Integer(parameters["port"], At(path, "port"), 1, kMaximumPort);
  network.address = Address(parameters["address"], At(path, "address"));
  if (parameters.contains("secret")) {
    network.secret = ShortText(parameters["secret"], At(path, "secret"));
  }
  return network;
}

ProfileConnection Serial(const QJsonObject& parameters, const QString& path) {
  CheckKeys(parameters, path, kSerialKeys);
  ProfileConnection serial{.isNetwork = false};
  // A path needs no number beside it.
  if (parameters.contains("port") || !parameters.contains("device")) {
    serial.port = Integer(parameters["port"], At(path, "port"), 1, kMaximumSerialPort) - 1;
  }
  if (parameters.contains("baud")) {
    serial.baud = Integer(parameters["baud"], At(path, "baud"), 1, kMaximumBaud);
  }
  serial.address = Device(parameters, path);
  return serial;
}

ProfileConnection Connection(const QJsonObject& connection, const QString& path) {
  // Their own keys are often written beside them.
  const QString kinds = QStringLiteral("network (%1), serial (%2)");
  CheckKeys(connection, path, {"network", "serial"},
            kinds.arg(kNetworkKeys.join(", "), kSerialKeys.join(", ")));
  const bool isNetwork = connection.contains("network");
  if (isNetwork == connection.contains("serial")) {
    throw WrongValue{path, ProfileFile::tr("must have either \"network\" or \"serial\"")};
  }
  const QString kind = isNetwork ? QStringLiteral("network") : QStringLiteral("serial");
  const QString kindPath = At(path, kind);
  const QJsonObject parameters = Object(connection[kind], kindPath);
  return isNetwork ? Network(parameters, kindPath) : Serial(parameters, kindPath);
}

std::vector<std::string> Tags(const QJsonValue& value, const QString& path) {
  std::vector<std::string> tags;
  const QJsonArray array = Array(value, path, kMaximumTags);
  tags.reserve(static_cast<std::size_t>(array.size()));
  for (int i = 0; i < array.size(); ++i) tags.push_back(ShortText(array[i], At(path, i)));
  return tags;
}

ProjectorLink Link(const QJsonValue& value, const QString& path) {
  const std::string name = String(value, path);
  const auto* known = std::ranges::find(kLinks, name, &NamedLink::name);
  if (known == std::end(kLinks)) {
    throw WrongValue{path, ProfileFile::tr("must be simulated, network, serial or pjlink")};
  }
  return known->link;
}

}  // namespace

void CheckLink(const FleetProfile& profile, const QString& path) {
  if (profile.link == ProjectorLink::Simulated) return;
  const bool serial = profile.link == ProjectorLink::Serial;
  if (serial == profile.connection.isNetwork) {
    throw WrongValue{
        path,
        ProfileFile::tr("needs a %1 connection").arg(QLatin1String(serial ? "serial" : "network"))};
  }
}

namespace {

std::vector<SettingId> Lacks(const QJsonValue& value, const QString& path) {
  std::vector<SettingId> lacks;
  const QJsonArray array = Array(value, path, static_cast<int>(kSettingCount));
  for (int i = 0; i < array.size(); ++i) {
    const std::string name = String(array[i], At(path, i));
    const auto settings = SettingsTable();
    const auto setting = std::ranges::find(settings, name, &Setting::name);
    if (setting == settings.end()) {
      throw WrongValue{At(path, i), ProfileFile::tr("there is no setting \"%1\"").arg(Text(name))};
    }
    lacks.push_back(setting->id);
  }
  return lacks;
}

}  // namespace

const QStringList kModelKeys{"like",   "model",     "dialogType", "modelCode",
                             "aspect", "mySources", "whisper",    "gamma",
                             "ranges", "colorTemp", "myButtons",  "lacks"};
const QStringList kFamilyKeys =
    kModelKeys + QStringList{"connection", "link", "tags", "ratedLampHours", "snapshot"};
const QStringList kEntryKeys = QStringList{"name"} + kFamilyKeys + QStringList{"identity", "notes"};

void ApplyModel(const QJsonObject& settings, const QString& path, ProfileModel& model) {
  CModelInfo2& info = model.info;
  for (auto member = settings.begin(); member != settings.end(); ++member) {
    const QString& key = member.key();
    const QJsonValue value = member.value();
    const QString valuePath = At(path, key);
    if (key == "model") info.ModelName = String(value, valuePath);
    if (key == "dialogType") info.DialogType = Integer(value, valuePath);
    if (key == "modelCode") info.ModelCode = Integer(value, valuePath);
    if (key == "mySources") info.MySourceList = Sources(value, valuePath);
    if (key == "whisper") info.WhisperList = List(value, valuePath);
    if (key == "aspect") info.AspectList = List(value, valuePath);
    if (key == "gamma") info.GammaList = List(value, valuePath);
    if (key == "colorTemp") info.ColorTempList = List(value, valuePath);
    if (key == "myButtons") info.MyButtonList = List(value, valuePath);
    if (key == "ranges") ApplyRanges(Object(value, valuePath), valuePath, info);
    if (key == "lacks") model.lacks = Lacks(value, valuePath);
  }
}

void ApplyProfile(const QJsonObject& settings, const QString& path, FleetProfile& profile) {
  for (auto member = settings.begin(); member != settings.end(); ++member) {
    const QString& key = member.key();
    const QJsonValue value = member.value();
    const QString valuePath = At(path, key);
    if (key == "name") profile.name = String(value, valuePath);
    if (key == "connection") profile.connection = Connection(Object(value, valuePath), valuePath);
    if (key == "link") profile.link = Link(value, valuePath);
    if (key == "identity") profile.identity = String(value, valuePath);
    if (key == "tags") profile.tags = Tags(value, valuePath);
    if (key == "notes") profile.notes = String(value, valuePath, kLongestNotes);
    if (key == "ratedLampHours") {
      profile.ratedLampHours = Integer(value, valuePath, 1, kMaximumLampHours);
    }
    if (key == "snapshot") profile.snapshot = String(value, valuePath);
  }
}

}  // namespace AdvancedControl
