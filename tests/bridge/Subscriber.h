#pragma once

#include <algorithm>
#include <map>
#include <set>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "tests/bridge/Daemons.h"

/// mosquitto_sub, and the last message of each topic.
class Subscriber {
 public:
  explicit Subscriber(quint16 port)
      : daemon_("mosquitto_sub", {"-p", QString::number(port), "-q", "1", "-F", "%t %r %p", "-t",
                                  "projectors/#", "-t", "homeassistant/#"}) {}

  const std::map<QByteArray, QByteArray>& Last() {
    const QByteArray& said = daemon_.Said();
    for (auto end = said.indexOf('\n', read_); end >= 0; end = said.indexOf('\n', read_)) {
      const QByteArray line = said.mid(read_, end - read_);
      read_ = end + 1;
      const auto topic = line.left(line.indexOf(' '));
      last_[topic] = line.mid(topic.size() + 3);
      ++counts_[topic];
      if (topic.endsWith("/state")) {
        const QJsonObject state = QJsonDocument::fromJson(last_[topic]).object();
        for (const char* key : {"reachability", "power"})
          names_[state[key].toString()].insert(state["name"].toString().toUtf8());
      }
    }
    return last_;
  }
  QJsonObject Json(const QByteArray& topic) {
    const auto& last = Last();
    const auto found = last.find(topic);
    return found == last.end() ? QJsonObject() : QJsonDocument::fromJson(found->second).object();
  }
  /// The level of a projector in this power state whose discovery message has these settings; empty
  /// until there is one.
  QByteArray Find(const char* power, const std::vector<const char*>& settings) {
    for (const auto& [topic, payload] : Last()) {
      QByteArray level = topic.split('/')[1];
      const auto config = last_.find("homeassistant/device/" + level + "/config");
      if (!topic.endsWith("/state") || config == last_.end() || Json(topic)["power"] != power) {
        continue;
      }
      const auto has = [&](const char* key) {
        return config->second.contains("/set/" + QByteArray(key) + '"');
      };
      if (std::ranges::all_of(settings, has)) return level;
    }
    return {};
  }
  /// The state of the projector of this name.
  QJsonObject StateOf(const QByteArray& name) {
    for (const auto& [topic, payload] : Last()) {
      if (topic.endsWith("/state") && Json(topic)["name"] == QString(name)) return Json(topic);
    }
    return {};
  }
  bool Saw(const char* text) { return daemon_.Said().contains(text); }
  int Count(const QByteArray& topic) { return Last(), counts_[topic]; }
  /// The projectors that ever had this reachability or power state.
  const std::set<QByteArray>& NamesThatWere(const char* state) { return Last(), names_[state]; }
  /// How many topics with this end have a message that contains a text.
  int With(const char* end, const char* text = "") {
    int count = 0;
    for (const auto& [topic, payload] : Last())
      count += topic.endsWith(end) && payload.contains(text);
    return count;
  }

 private:
  Daemon daemon_;
  qsizetype read_ = 0;
  std::map<QByteArray, QByteArray> last_;
  std::map<QByteArray, int> counts_;
  std::map<QString, std::set<QByteArray>> names_;
};
