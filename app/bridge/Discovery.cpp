#include "app/bridge/Discovery.h"

#include <algorithm>
#include <array>
#include <optional>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include "app/bridge/StateMessage.h"
#include "settings/CatalogNumbers.h"
#include "settings/RowParts.h"

namespace {

using Kind = ModelSetting::Kind;

constexpr const char* kPlatform = "platform";
constexpr const char* kTemplate = "value_template";

QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString MemberTemplate(std::string_view member) {
  return QStringLiteral("{{ value_json['%1'] }}").arg(Text(member));
}

/// What comes after the colon of an identity of this kind.
std::optional<QString> IdentityOf(const FleetProfile& profile, std::string_view kind) {
  if (!profile.identity.starts_with(kind)) return {};
  return Text(std::string_view(profile.identity).substr(kind.size()));
}

QJsonObject DeviceOf(const FleetProfile& profile, const QByteArray& id) {
  QJsonObject device{{"identifiers", QJsonArray{QString::fromLatin1(id)}},
                     {"name", Text(profile.name)},
                     {"model", Text(profile.model->data.ModelName)}};
  if (const auto serial = IdentityOf(profile, "serial:")) device["serial_number"] = *serial;
  if (const auto mac = IdentityOf(profile, "mac:")) {
    QJsonArray connections;
    connections.append(
        QJsonArray{"mac", *mac});  // one in braces would be a copy for some compilers
    device["connections"] = connections;
  }
  return device;
}

struct Names {
  Q_DECLARE_TR_FUNCTIONS(Discovery)
};

/// In the order of `ProjectorPart`.
constexpr std::array<const char*, PjLink::kParts> kProblems{
    QT_TRANSLATE_NOOP("Discovery", "Problem: fan"), QT_TRANSLATE_NOOP("Discovery", "Problem: lamp"),
    QT_TRANSLATE_NOOP("Discovery", "Problem: temperature"),
    QT_TRANSLATE_NOOP("Discovery", "Problem: cover"),
    QT_TRANSLATE_NOOP("Discovery", "Problem: filter"),
    //: Any other problem of a projector.
    QT_TRANSLATE_NOOP("Discovery", "Problem: other")};

QJsonObject BinarySensor(const QString& name, const char* deviceClass, const QString& isOn) {
  return {{kPlatform, "binary_sensor"},
          {"name", name},
          {"device_class", deviceClass},
          {"entity_category", "diagnostic"},
          {"payload_on", "ON"},
          {"payload_off", "OFF"},
          {kTemplate, QStringLiteral("{{ 'ON' if %1 else 'OFF' }}").arg(isOn)}};
}

bool IsSwitch(const ModelSetting& setting) {
  return setting.kind == Kind::State || std::ranges::equal(setting.entries, kSwitch);
}

/// The state that the fleet watches and this setting changes; empty if there is none.
std::string_view WatchedBy(const ModelSettings& settings, const ModelSetting& setting) {
  const auto reading = ReadingOf(*setting.row, settings.Model());
  if (!reading) return {};
  for (const ModelSetting& state : settings.All()) {
    const std::string_view member = StateMemberOf(state.key);
    const auto same = member.empty() ? std::nullopt : ReadingOf(*state.row, settings.Model());
    if (same && same->Command() == reading->Command()) return member;
  }
  return {};
}

}  // namespace

QByteArray Discovery::MessageOf(const FleetProfile& profile, const QByteArray& id) const {
  const QString bridge = QString::fromUtf8(topics_.Availability());
  const QString state = QString::fromUtf8(topics_.State(id));
  const QJsonObject ofBridge{{"topic", bridge}};
  const QJsonObject ofProjector{
      {"topic", state},
      {kTemplate, "{{ 'online' if value_json.reachability == 'answers' else 'offline' }}"}};

  QJsonObject components = Components(profile, id);
  for (auto component = components.begin(); component != components.end(); ++component) {
    QJsonObject entity = component->toObject();
    entity["unique_id"] = QString::fromLatin1(id) + '_' + component.key();
    if (entity.contains(kTemplate)) entity["state_topic"] = state;
    // This entity shows that the projector is silent.
    if (component.key() == "reachable") entity["availability"] = QJsonArray{ofBridge};
    *component = entity;
  }
  const QJsonObject message{{"device", DeviceOf(profile, id)},
                            {"origin", QJsonObject{{"name", "advanced-control-bridge"},
                                                   {"sw_version", ADVANCED_CONTROL_VERSION}}},
                            {"availability", QJsonArray{ofBridge, ofProjector}},
                            {"availability_mode", "all"},
                            {"components", components}};
  return QJsonDocument(message).toJson(QJsonDocument::Compact);
}

QJsonObject Discovery::Components(const FleetProfile& profile, const QByteArray& id) const {
  QJsonObject components{{"reachable", BinarySensor(Names::tr("Reachable"), "connectivity",
                                                    "value_json.reachability == 'answers'")}};
  for (std::size_t i = 0; i < PjLink::kParts; ++i) {
    const char* const part = NameOf(static_cast<ProjectorPart>(i));
    const QString name = Text(part);
    components["problem_" + name] = BinarySensor(
        Names::tr(kProblems[i]), "problem",
        QStringLiteral("(value_json.problems or {}).get('%1', 'none') != 'none'").arg(name));
  }
  const auto topic = [&](std::string_view key) {
    const QByteArray bytes(key.data(), static_cast<qsizetype>(key.size()));
    return QString::fromUtf8(topics_.Set(id, bytes));
  };
  if (rules_.Allows(kPowerKey)) {
    components["power"] = QJsonObject{
        {kPlatform, "switch"},
        {"name", Names::tr("Power")},
        {"command_topic", topic(kPowerKey)},
        {"payload_on", "on"},
        {"payload_off", "off"},
        {"state_on", "on"},
        {"state_off", "off"},
        {kTemplate, "{{ 'on' if value_json.power in ['on', 'warming-up'] else 'off' }}"}};
  }
  const ModelSettings& settings = models_.Of(profile);
  for (const ModelSetting& setting : settings.All()) {
    QJsonObject entity = SensorOf(setting);
    if (entity.isEmpty() && rules_.Allows(setting)) {
      entity = ControlOf(settings, setting);
      if (!entity.isEmpty()) entity["command_topic"] = topic(setting.key);
    }
    if (entity.isEmpty()) continue;
    entity["name"] = Text(texts_.Name(settings, setting, {}));
    components[Text(setting.key).replace('.', '_')] = entity;
  }
  return components;
}

/// Empty for a setting that is no state, or whose state nobody watches.
QJsonObject Discovery::SensorOf(const ModelSetting& setting) const {
  const std::string_view member = StateMemberOf(setting.key);
  if (member.empty()) return {};
  QJsonObject sensor{{kPlatform, "sensor"}, {kTemplate, MemberTemplate(member)}};
  if (setting.otherwise == ListText::Hours) {
    sensor["device_class"] = "duration";
    sensor["state_class"] = "total_increasing";
    sensor["unit_of_measurement"] = "h";
    sensor["entity_category"] = "diagnostic";
  }
  return sensor;
}

/// Without a state of its own the hub shows what it sent last.
QJsonObject Discovery::ControlOf(const ModelSettings& settings, const ModelSetting& setting) const {
  if (setting.kind == Kind::Action && setting.entries.empty()) {
    return {{kPlatform, "button"}, {"payload_press", "run"}};
  }
  if (setting.kind == Kind::Number) {
    constexpr int kMost = 0xFFFF;
    const Range range = setting.range.value_or(Range{0, kMost});
    return {{kPlatform, "number"},
            {"min", range.minimum - setting.bias},
            {"max", range.maximum - setting.bias},
            {"step", 1},
            {"command_template", "={{ value | int }}"},
            {"entity_category", "config"}};
  }
  const std::string_view watched = WatchedBy(settings, setting);
  if (IsSwitch(setting)) {
    QJsonObject control{{kPlatform, "switch"}, {"payload_on", "1"}, {"payload_off", "0"}};
    if (!watched.empty()) {
      control[kTemplate] = MemberTemplate(watched);
      control["state_on"] = "on";
      control["state_off"] = watched == "power" ? "standby" : "off";
    }
    return control;
  }
  QJsonArray options;
  for (const ListEntry& entry : setting.entries) {
    if (entry.value != setting.placeholder) options.append(Text(texts_.Entry(setting, entry)));
  }
  if (options.isEmpty()) return {};
  QJsonObject control{{kPlatform, "select"}, {"options", options}};
  if (setting.SelectsInput()) control[kTemplate] = MemberTemplate("input");
  return control;
}
