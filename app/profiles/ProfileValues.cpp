#include "app/profiles/ProfileValues.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "device/HostAddress.h"

namespace {

constexpr int kNetworkKind = 1;
constexpr int kSerialKind = 0;
constexpr int kMaximumPort = 65535;
constexpr int kMaximumSerialPort = 256;
constexpr int kMaximumBaud = 4'000'000;
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

struct NamedRange {
  std::string_view name;
  std::size_t index;
};

constexpr NamedRange kNamedRanges[] = {
    {"autoOff", RangeIndex::AutoOff},
    {"colorTempGainR", RangeIndex::ColorTempAdjust},
    {"colorTempGainG", RangeIndex::ColorTempAdjust + 1},
    {"colorTempGainB", RangeIndex::ColorTempAdjust + 2},
    {"colorTempOffsetR", RangeIndex::ColorTempAdjust + 3},
    {"colorTempOffsetG", RangeIndex::ColorTempAdjust + 4},
    {"colorTempOffsetB", RangeIndex::ColorTempAdjust + 5},
    {"gammaPoint1", RangeIndex::GammaPoint},
    {"gammaPoint2", RangeIndex::GammaPoint + 1},
    {"gammaPoint3", RangeIndex::GammaPoint + 2},
    {"gammaPoint4", RangeIndex::GammaPoint + 3},
    {"gammaPoint5", RangeIndex::GammaPoint + 4},
    {"gammaPoint6", RangeIndex::GammaPoint + 5},
    {"gammaPoint7", RangeIndex::GammaPoint + 6},
    {"gammaPoint8", RangeIndex::GammaPoint + 7},
    {"overScan", RangeIndex::OverScan},
    {"hPhase", RangeIndex::HPhase},
    {"brightness", RangeIndex::Brightness},
    {"contrast", RangeIndex::Contrast},
    {"keystoneV", RangeIndex::KeystoneV},
    {"keystoneH", RangeIndex::KeystoneH},
    {"volume", RangeIndex::Volume},
    {"colorBalR", RangeIndex::ColorBalR},
    {"colorBalG", RangeIndex::ColorBalG},
    {"colorBalB", RangeIndex::ColorBalB},
    {"sharpness", RangeIndex::Sharpness},
    {"color", RangeIndex::Color},
    {"tint", RangeIndex::Tint},
    {"customGamma", RangeIndex::CustomGamma},
    {"osdBrightness", RangeIndex::OsdBrightness},
    {"electricZoom", RangeIndex::ElectricZoom},
    {"treble", RangeIndex::Treble},
    {"bass", RangeIndex::Bass},
};

}  // namespace

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString At(const QString& path, const QString& key) {
  return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

QString At(const QString& path, int index) { return path + QStringLiteral("[%1]").arg(index); }

void CheckKeys(const QJsonObject& object, const QString& path, const QStringList& known) {
  for (auto member = object.begin(); member != object.end(); ++member) {
    if (!known.contains(member.key())) {
      throw WrongValue{At(path, member.key()),
                       ProfileText::tr("unknown key; known are %1").arg(known.join(", "))};
    }
  }
}

QJsonObject Object(const QJsonValue& value, const QString& path) {
  if (!value.isObject()) throw WrongValue{path, ProfileText::tr("must be an object")};
  return value.toObject();
}

QJsonArray Array(const QJsonValue& value, const QString& path, int capacity) {
  if (!value.isArray()) throw WrongValue{path, ProfileText::tr("must be an array")};
  QJsonArray array = value.toArray();
  if (array.size() > capacity) {
    throw WrongValue{
        path,
        ProfileText::tr("has %1 entries; at most %2 are possible").arg(array.size()).arg(capacity)};
  }
  return array;
}

std::string String(const QJsonValue& value, const QString& path) {
  if (!value.isString() || value.toString().isEmpty()) {
    throw WrongValue{path, ProfileText::tr("must be a text that is not empty")};
  }
  return value.toString().toStdString();
}

namespace {

NameSlot Slot(const QJsonValue& value, const QString& path) {
  const std::string text = String(value, path);
  if (text.size() > NameSlot{}.size()) {
    throw WrongValue{path, ProfileText::tr("is longer than %1 bytes").arg(NameSlot{}.size())};
  }
  return MakeNameSlot(text);
}

std::int32_t Integer(const QJsonValue& value, const QString& path,
                     std::int32_t minimum = std::numeric_limits<std::int32_t>::min(),
                     std::int32_t maximum = std::numeric_limits<std::int32_t>::max()) {
  const double number = value.toDouble(0.5);
  const auto integer = static_cast<qint64>(std::clamp(number, -1e10, 1e10));
  if (!value.isDouble() || static_cast<double>(integer) != number) {
    throw WrongValue{path, ProfileText::tr("must be a whole number")};
  }
  if (integer < minimum || integer > maximum) {
    throw WrongValue{
        path, ProfileText::tr("is %1; it must be %2 to %3").arg(integer).arg(minimum).arg(maximum)};
  }
  return static_cast<std::int32_t>(integer);
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
      throw WrongValue{entryPath, ProfileText::tr("must be a number, a text or an object with "
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

std::size_t RangeNumber(const QString& key, const QString& path) {
  const auto* named = std::ranges::find_if(
      kNamedRanges, [&key](const NamedRange& range) { return Text(range.name) == key; });
  if (named != std::end(kNamedRanges)) return named->index;
  bool isNumber = false;
  const std::size_t index = key.toULongLong(&isNumber);
  if (!isNumber || index >= RangeIndex::Count || key != QString::number(index)) {
    throw WrongValue{path, ProfileText::tr("is neither the name of a range nor a number 0 to %1")
                               .arg(RangeIndex::Count - 1)};
  }
  named = std::ranges::find(kNamedRanges, index, &NamedRange::index);
  if (named != std::end(kNamedRanges)) {
    throw WrongValue{path,
                     ProfileText::tr("must be given by its name \"%1\"").arg(Text(named->name))};
  }
  return index;
}

void ApplyRanges(const QJsonObject& ranges, const QString& path, CModelInfo2& model) {
  for (auto member = ranges.begin(); member != ranges.end(); ++member) {
    const QString rangePath = At(path, member.key());
    std::string& text = model.RangeText(RangeNumber(member.key(), rangePath));
    if (member.value().isNull()) {
      text.clear();
      continue;
    }
    const QJsonArray ends = member.value().toArray();
    if (ends.size() != 2) {
      throw WrongValue{rangePath, ProfileText::tr("must be [minimum, maximum] or null")};
    }
    // Ends below zero are for settings whose device values are signed.
    constexpr int kLowest = std::numeric_limits<std::int16_t>::min();
    const auto minimum = Integer(ends[0], At(rangePath, 0), kLowest, kMaximumDeviceValue);
    const auto maximum = Integer(ends[1], At(rangePath, 1), kLowest, kMaximumDeviceValue);
    if (minimum > maximum) {
      throw WrongValue{rangePath, ProfileText::tr("has a minimum above its maximum")};
    }
    text = std::to_string(minimum) + ',' + std::to_string(maximum);
  }
}

NameSlot Device(const QJsonObject& parameters, const QString& path) {
  if (!parameters.contains("device")) return {};
  const QString devicePath = At(path, "device");
  if (!parameters["device"].toString().startsWith(QLatin1Char('/'))) {
    throw WrongValue{devicePath, ProfileText::tr("must be a path that begins with /")};
  }
  return Slot(parameters["device"], devicePath);
}

NameSlot Address(const QJsonValue& value, const QString& path) {
  const NameSlot address = Slot(value, path);
  if (!IsHostAddress(NameText(address))) {
    throw WrongValue{path, ProfileText::tr("is neither the name of a host nor an IP address")};
  }
  return address;
}

void ApplyConnection(const QJsonObject& connection, const QString& path, CModelInfo2& model) {
  CheckKeys(connection, path, {"network", "serial"});
  if (connection.size() != 1) {
    throw WrongValue{path, ProfileText::tr("must have either \"network\" or \"serial\"")};
  }
  const QString kind = connection.begin().key();
  const QString kindPath = At(path, kind);
  const QJsonObject parameters = Object(connection.begin().value(), kindPath);
  if (kind == "network") {
    CheckKeys(parameters, kindPath, {"address", "port", "secret"});
    model.ConnectionKinds[0] = kNetworkKind;
    model.ConnectionNumbers[0] = 0;
    model.ConnectionParameters[0] =
        Integer(parameters["port"], At(kindPath, "port"), 1, kMaximumPort);
    model.ConnectionTexts1[0] = Address(parameters["address"], At(kindPath, "address"));
    model.ConnectionTexts2[0] = parameters.contains("secret")
                                    ? Slot(parameters["secret"], At(kindPath, "secret"))
                                    : NameSlot{};
  } else {
    CheckKeys(parameters, kindPath, {"port", "baud", "device"});
    model.ConnectionKinds[0] = kSerialKind;
    // A path needs no number beside it.
    const bool hasNumber = parameters.contains("port") || !parameters.contains("device");
    model.ConnectionNumbers[0] =
        hasNumber ? Integer(parameters["port"], At(kindPath, "port"), 1, kMaximumSerialPort) - 1
                  : 0;
    model.ConnectionParameters[0] =
        parameters.contains("baud")
            ? Integer(parameters["baud"], At(kindPath, "baud"), 1, kMaximumBaud)
            : 0;
    model.ConnectionTexts1[0] = Device(parameters, kindPath);
    model.ConnectionTexts2[0] = {};
  }
}

ProjectorLink Link(const QJsonValue& value, const QString& path) {
  const std::string name = String(value, path);
  const auto* known = std::ranges::find(kLinks, name, &NamedLink::name);
  if (known == std::end(kLinks)) {
    throw WrongValue{path, ProfileText::tr("must be simulated, network, serial or pjlink")};
  }
  return known->link;
}

}  // namespace

void CheckLink(const ProjectorProfile& profile, const QString& path) {
  if (profile.Link == ProjectorLink::Simulated) return;
  const bool serial = profile.Link == ProjectorLink::Serial;
  if (serial == (profile.Model.ConnectionKinds[0] == kNetworkKind)) {
    throw WrongValue{
        path,
        ProfileText::tr("needs a %1 connection").arg(QLatin1String(serial ? "serial" : "network"))};
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
      throw WrongValue{At(path, i), ProfileText::tr("there is no setting \"%1\"").arg(Text(name))};
    }
    lacks.push_back(setting->id);
  }
  return lacks;
}

}  // namespace

const QStringList kFamilyKeys{"like",    "model",      "dialogType", "modelCode", "mySources",
                              "whisper", "aspect",     "gamma",      "colorTemp", "myButtons",
                              "ranges",  "connection", "link",       "lacks"};

void Apply(const QJsonObject& settings, const QString& path, ProjectorProfile& profile) {
  CModelInfo2& model = profile.Model;
  for (auto member = settings.begin(); member != settings.end(); ++member) {
    const QString& key = member.key();
    const QJsonValue value = member.value();
    const QString valuePath = At(path, key);
    if (key == "name") profile.Name = String(value, valuePath);
    if (key == "model") model.ModelName = String(value, valuePath);
    if (key == "dialogType") model.DialogType = Integer(value, valuePath);
    if (key == "modelCode") model.ModelCode = Integer(value, valuePath);
    if (key == "mySources") model.MySourceList = Sources(value, valuePath);
    if (key == "whisper") model.WhisperList = List(value, valuePath);
    if (key == "aspect") model.AspectList = List(value, valuePath);
    if (key == "gamma") model.GammaList = List(value, valuePath);
    if (key == "colorTemp") model.ColorTempList = List(value, valuePath);
    if (key == "myButtons") model.MyButtonList = List(value, valuePath);
    if (key == "ranges") ApplyRanges(Object(value, valuePath), valuePath, model);
    if (key == "connection") ApplyConnection(Object(value, valuePath), valuePath, model);
    if (key == "link") profile.Link = Link(value, valuePath);
    if (key == "lacks") profile.Lacks = Lacks(value, valuePath);
  }
}
