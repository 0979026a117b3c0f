#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QJsonObject>
#include <QTimer>

#include "app/bridge/BrokerPauses.h"
#include "app/bridge/BrokerSession.h"
#include "app/bridge/HangWatch.h"
#include "app/bridge/Publisher.h"
#include "app/bridge/ShareKeeper.h"
#include "app/bridge/Topics.h"

/// Keeps the right kind of connection to the broker. While another bridge has the share, the
/// connection only watches that; while this bridge has it, the connection has a last will and
/// carries commands and all messages.
class BrokerLink {
 public:
  struct Services {
    /// Listened to first, so that its retained message comes before any command; may be empty.
    QByteArray commandSwitch;
    /// What else to listen to while the share is held, in this order.
    std::vector<QByteArray> topics;
    std::function<void(const BrokerMessage& message)> received;
    /// The connection is new; nothing has been received over it.
    std::function<void()> renewed;
    /// Another bridge had the share until now, so what was known of the projectors is old.
    std::function<void()> takenOver;
    QJsonObject share;  ///< Describes the share for other bridges.
  };

  BrokerLink(const BrokerAddress& address, const Topics& topics, std::chrono::milliseconds takeover,
             Publisher::Make make, std::size_t projectors, Services services);
  /// Says that the share is free.
  ~BrokerLink();
  BrokerLink(const BrokerLink&) = delete;
  BrokerLink& operator=(const BrokerLink&) = delete;

  /// Starts, and returns one line with the error; empty on success.
  QString Start();
  /// To be called several times a second.
  void Tick();

  Publisher& Messages() { return publisher_; }
  bool IsConnected() const { return session_->IsConnected(); }
  bool MayAsk() const;

 private:
  void Connect();
  void ConnectAgain(std::chrono::milliseconds pause);
  void Take(const BrokerMessage& message);
  void FollowRole();
  void Settle();
  void Publish(const Claim& claim);

  const BrokerAddress address_;
  const Topics topics_;
  const Services services_;
  const QByteArray instance_;
  HangWatch hang_;  ///< For so long that another bridge may take over.
  ShareKeeper keeper_;
  Publisher publisher_;
  bool holds_ = false;      ///< What the present connection is for.
  bool isSettled_ = false;  ///< Whether the work that follows once it is settled was done.
  bool stoodBack_ = false;
  bool isClosing_ = false;
  BrokerPauses pauses_;
  std::unique_ptr<BrokerSession> session_;
  QTimer connecting_;  ///< Makes the next connection.
};
