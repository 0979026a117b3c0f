#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QJsonObject>
#include <QObject>

#include "app/bridge/BrokerSession.h"
#include "app/bridge/Publisher.h"
#include "app/bridge/ShareKeeper.h"
#include "app/bridge/Topics.h"

/// Keeps the connection to the broker as the share demands: one that only looks while another
/// bridge has the share; and one with a last will, with commands and with all messages, while this
/// bridge has it.
class BrokerLink {
 public:
  struct Services {
    /// What to listen to while the share is held, in this order.
    std::vector<QByteArray> topics;
    std::function<void(const BrokerMessage& message)> received;
    /// The connection is new; nothing has been received over it.
    std::function<void()> renewed;
    QJsonObject share;  ///< For other bridges.
  };

  BrokerLink(const BrokerAddress& address, const Topics& topics, std::chrono::milliseconds takeover,
             Publisher::Make make, std::size_t projectors, Services services);
  /// Says that the share is free.
  ~BrokerLink();
  BrokerLink(const BrokerLink&) = delete;
  BrokerLink& operator=(const BrokerLink&) = delete;

  /// Begins. One line that says why that is impossible; empty when all is well.
  QString Start();
  /// To be called several times a second.
  void Tick();

  Publisher& Messages() { return publisher_; }
  const Publisher& Messages() const { return publisher_; }
  bool IsConnected() const { return session_->IsConnected(); }
  bool MayAsk() const { return keeper_.MayAsk(Now()); }

 private:
  static ShareKeeper::Time Now() { return std::chrono::steady_clock::now(); }
  void Connect();
  void TakeConnected();
  void TakeDisconnected();
  void Take(const BrokerMessage& message);
  void FollowRole();
  void Settle();

  const BrokerAddress address_;
  const Topics topics_;
  const Services services_;
  const QByteArray instance_;
  ShareKeeper keeper_;
  Publisher publisher_;
  bool holds_ = false;      ///< What the present connection is for.
  bool isSettled_ = false;  ///< What follows from being settled was done.
  bool stoodBack_ = false;
  bool isClosing_ = false;
  std::unique_ptr<BrokerSession> session_;
  QObject context_;  ///< Ends first, with the connection that is to be made.
};
