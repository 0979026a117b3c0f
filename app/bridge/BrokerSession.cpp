#include "app/bridge/BrokerSession.h"

#include <utility>

#include <QTimer>

#include "app/bridge/Log.h"

namespace {

constexpr std::chrono::seconds kFarewell{2};
const QByteArray kOnline = "online";
const QByteArray kOffline = "offline";

}  // namespace

BrokerSession::BrokerSession(const BrokerAddress& address, const Topics& topics,
                             QByteArray instance, bool holds, Listener listener)
    : topics_(topics), instance_(std::move(instance)), listener_(std::move(listener)) {
  std::optional<BrokerMessage> will;
  if (holds) will = BrokerMessage{topics_.Availability(), kOffline, true};
  broker_ = std::make_unique<Broker>(
      address, will,
      Broker::Listener{.connected = [this] { TakeConnected(); },
                       .disconnected = [this](const QString& reason) { TakeDisconnected(reason); },
                       .subscribed =
                           [this](int number) {
                             if (number == helloSubscription_)
                               broker_->Publish({topics_.Hello(), instance_});
                           },
                       .received = listener_.received,
                       .sent = [this](int number) { TakeSent(number); }});
}

void BrokerSession::TakeConnected() {
  Log(QStringLiteral("connected to the broker"));
  isConnected_ = true;
  toldProblem_ = false;
  listener_.connected();
  broker_->Subscribe(topics_.Holder());
  broker_->Subscribe(topics_.Availability());
  helloSubscription_ = broker_->Subscribe(topics_.Hello());
}

void BrokerSession::TakeDisconnected(const QString& reason) {
  if (isConnected_ || !toldProblem_) Log("not connected to the broker: " + reason);
  toldProblem_ = true;
  if (std::exchange(isConnected_, false)) listener_.lost();
}

void BrokerSession::TakeSent(int number) {
  if (number == farewell_) ending_.quit();
  listener_.sent(number);
}

void BrokerSession::SayOnline() { broker_->Publish({topics_.Availability(), kOnline, true}); }

void BrokerSession::SayOffline() {
  farewell_ = broker_->Publish({topics_.Availability(), kOffline, true});
  QTimer::singleShot(kFarewell, &ending_, &QEventLoop::quit);
  if (farewell_) ending_.exec();
}
