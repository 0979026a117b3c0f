#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include <QByteArray>

/// A hash that is the same on every machine and in every version.
std::uint64_t StableHash(std::string_view text);

/// A text as one level of a topic, made of letters, digits, "-" and "_" alone. A colon becomes "_".
/// A text with other characters gets a hash at its end, so that different texts differ.
QByteArray TopicLevel(std::string_view text);

/// The topics of one bridge. `id` is a projector's identity as a level.
class Topics {
 public:
  Topics(QByteArray prefix, const QByteArray& share)
      : prefix_(std::move(prefix)), bridge_(prefix_ + "/bridge/" + share) {}

  QByteArray State(const QByteArray& id) const { return prefix_ + '/' + id + "/state"; }
  QByteArray Answer(const QByteArray& id) const { return prefix_ + '/' + id + "/answer"; }
  /// With a key, for a plain value; without one, for JSON.
  QByteArray Set(const QByteArray& id, const QByteArray& key = {}) const {
    return prefix_ + '/' + id + (key.isEmpty() ? "/set" : "/set/" + key);
  }

  /// What all commands to all bridges come with.
  QByteArray EverySet() const { return prefix_ + "/+/set"; }
  QByteArray EveryKeySet() const { return prefix_ + "/+/set/+"; }
  /// "off" switches the commands of all bridges off.
  QByteArray CommandSwitch() const { return prefix_ + "/bridge/commands"; }

  /// The holders of all shares.
  QByteArray EveryHolder() const { return prefix_ + "/bridge/+/holder"; }
  bool IsHolder(const QByteArray& topic) const {
    return topic.startsWith(prefix_ + "/bridge/") && topic.endsWith("/holder");
  }

  // Of the share.
  QByteArray Availability() const { return bridge_ + "/availability"; }
  QByteArray Holder() const { return bridge_ + "/holder"; }
  QByteArray Hello() const { return bridge_ + "/hello"; }

  struct Address {
    QByteArray id;
    QByteArray key;  ///< Empty for JSON.
  };
  /// Takes the topic of a command apart; the identity is empty for any other topic.
  Address ParseSet(const QByteArray& topic) const;

 private:
  QByteArray prefix_;
  QByteArray bridge_;
};
