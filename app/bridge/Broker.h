#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include <QByteArray>
#include <QString>

/// How to reach a message broker.
struct BrokerAddress {
  QString host;
  int port = 1883;
  int version = 4;  ///< Of the protocol: 4 is MQTT 3.1.1, 5 is MQTT 5.
  QByteArray user{};
  QByteArray password{};
  bool usesTls = false;
  QByteArray caFile{};    ///< Empty for the system's authorities.
  QByteArray certFile{};  ///< Of the client; empty for none.
  QByteArray keyFile{};
};

struct BrokerMessage {
  QByteArray topic{};
  QByteArray payload{};
  bool isRetained = false;
};

/// A connection to a message broker. It is tried again until it is made, after pauses from half a
/// second to half a minute. Once it breaks it is over, with the messages under way. Belongs to the
/// thread that makes it, on which all functions of the listener are called; the network has a
/// thread of its own.
class Broker {
 public:
  // The pauses after tries. Also how long to wait before a connection that broke is replaced.
  static constexpr std::chrono::milliseconds kFirstPause{500};
  static constexpr std::chrono::milliseconds kLongestPause{30'000};

  struct Listener {
    std::function<void()> connected;
    /// Also after each try that failed.
    std::function<void(const QString& reason)> disconnected;
    std::function<void(int number)> subscribed;
    std::function<void(const BrokerMessage& message)> received;
    std::function<void(int number)> sent;  ///< The broker has it.
  };

  /// Begins to connect. The broker sends `will` when the connection breaks.
  Broker(const BrokerAddress& address, const std::optional<BrokerMessage>& will, Listener listener);
  /// Says good-bye, so that the will is not sent. Does not wait for a broker that does not answer.
  ~Broker();
  Broker(const Broker&) = delete;
  Broker& operator=(const Broker&) = delete;

  /// Whether a thread still connects for a `Broker` that is gone. A program must not run its exit
  /// handlers then, since they take away what the thread uses.
  static bool HasThreadLeft();

  /// Why the parameters cannot be used, such as a file that cannot be read; empty when all is well.
  const QString& Error() const { return error_; }

  // Each returns a number that the listener gets; nothing if it cannot be sent at all.

  /// Sent exactly once, as far as this depends on the sender.
  std::optional<int> Subscribe(const QByteArray& topic);
  /// Received at least once, without the further round trip that exactly once takes.
  std::optional<int> SubscribeAtOnce(const QByteArray& topic);
  /// Sent at least once.
  std::optional<int> Publish(const BrokerMessage& message);

 private:
  class Connection;

  std::optional<int> Subscribe(const QByteArray& topic, int quality);

  const std::shared_ptr<Connection> connection_;
  const QString error_;
  std::thread thread_;
};
