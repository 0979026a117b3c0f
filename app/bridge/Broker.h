#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include <QByteArray>
#include <QObject>
#include <QString>

struct mosquitto;

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

/// A connection to a message broker that is made again whenever it breaks, after pauses from half a
/// second to half a minute. Belongs to the thread that makes it, on which all functions of the
/// listener are called; the network has a thread of its own.
class Broker {
 public:
  struct Listener {
    std::function<void()> connected;
    std::function<void(const QString& reason)> disconnected;
    std::function<void(int number)> subscribed;
    std::function<void(const BrokerMessage& message)> received;
    std::function<void(int number)> sent;  ///< The broker has it.
  };

  /// Begins to connect. The broker sends `will` when the connection breaks.
  Broker(const BrokerAddress& address, const std::optional<BrokerMessage>& will, Listener listener);
  /// Says good-bye, so that the will is not sent.
  ~Broker();
  Broker(const Broker&) = delete;
  Broker& operator=(const Broker&) = delete;

  /// Why the parameters cannot be used, such as a file that cannot be read; empty when all is well.
  const QString& Error() const { return error_; }

  // Each returns a number that the listener gets; nothing if it cannot be sent at all.

  /// Sent exactly once, as far as this depends on the sender.
  std::optional<int> Subscribe(const QByteArray& topic);
  /// Sent at least once. A message passed while the connection is broken is sent when it is
  /// restored.
  std::optional<int> Publish(const BrokerMessage& message);

 private:
  QString Configure(const BrokerAddress& address, const std::optional<BrokerMessage>& will);
  void SetCallbacks();
  void Run();
  void QueueCall(std::function<void()> what);

  const BrokerAddress address_;
  const Listener listener_;
  std::unique_ptr<mosquitto, void (*)(mosquitto*)> client_;
  QString error_;
  QObject context_;  ///< Queued calls are dropped when it dies.
  std::mutex mutex_;
  std::condition_variable ends_;
  bool isEnding_ = false;  ///< Under the mutex.
  std::atomic<bool> isConnected_ = false;
  std::atomic<int> refusal_ = 0;  ///< What the broker said instead of connecting.
  std::thread thread_;
};
