#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QEventLoop>
#include <QString>

#include "app/bridge/Broker.h"
#include "app/bridge/Topics.h"

/// A connection to the broker for one role: with a last will for the holder of the share, or only
/// to look at who holds it. Subscribes to the topics of the share, and then says hello.
class BrokerSession {
 public:
  struct Listener {
    std::function<void()> connected;
    std::function<void()> lost;  ///< The connection broke; another session must replace it.
    std::function<void(const BrokerMessage& message)> received;
    std::function<void(int number)> sent;
  };

  /// `instance` is this bridge's name for this run. `topics` must outlive it.
  BrokerSession(const BrokerAddress& address, const Topics& topics, QByteArray instance, bool holds,
                Listener listener);

  /// As `Broker::Error`.
  const QString& Error() const { return broker_->Error(); }
  bool IsConnected() const { return isConnected_; }

  void Subscribe(const QByteArray& topic) { broker_->Subscribe(topic); }
  std::optional<int> Publish(const BrokerMessage& message) { return broker_->Publish(message); }
  void SayOnline();
  /// Waits until the broker has confirmed the message, for up to two seconds.
  void SayOffline();

 private:
  void TakeConnected();
  void TakeDisconnected(const QString& reason);
  void TakeSent(int number);

  const Topics& topics_;
  const QByteArray instance_;
  const Listener listener_;
  bool isConnected_ = false;
  bool toldProblem_ = false;
  std::optional<int> helloSubscription_{};
  std::optional<int> farewell_{};
  QEventLoop ending_;
  std::unique_ptr<Broker> broker_;
};
