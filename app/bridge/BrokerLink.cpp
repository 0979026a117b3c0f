#include "app/bridge/BrokerLink.h"

#include <utility>

#include <QUuid>

#include "app/bridge/Log.h"

namespace {

constexpr std::chrono::seconds kFarewell{2};
const QByteArray kOnline = "online";
const QByteArray kOffline = "offline";

}  // namespace

BrokerLink::BrokerLink(const BrokerAddress& address, const Topics& topics,
                       std::chrono::milliseconds takeover, Publisher::Make make,
                       std::size_t projectors, Services services)
    : address_(address),
      topics_(topics),
      services_(std::move(services)),
      instance_(QUuid::createUuid().toByteArray(QUuid::WithoutBraces)),
      keeper_(instance_.toStdString(), takeover, Now()),
      publisher_(projectors, std::move(make),
                 [this](const BrokerMessage& message) { return broker_->Publish(message); }) {}

BrokerLink::~BrokerLink() {
  isClosing_ = true;
  if (!isConnected_ || !keeper_.IsSettled()) return;
  publisher_.Stop();
  SayAvailability(false);
  QTimer::singleShot(kFarewell, &ending_, &QEventLoop::quit);
  if (farewell_) ending_.exec();
}

QString BrokerLink::Start() {
  Connect();
  return broker_->Error();
}

/// Makes a connection for the present role, in place of the one that is there.
void BrokerLink::Connect() {
  broker_.reset();
  isConnected_ = isSettled_ = false;
  holds_ = HoldsShare();
  publisher_.Restart();
  keeper_.Disconnected();
  std::optional<BrokerMessage> will;
  if (holds_) will = BrokerMessage{topics_.Availability(), kOffline, true};
  broker_ = std::make_unique<Broker>(
      address_, will,
      Broker::Listener{.connected = [this] { TakeConnected(); },
                       .disconnected = [this](const QString& reason) { TakeDisconnected(reason); },
                       .subscribed =
                           [this](int number) {
                             if (number == helloSubscription_)
                               broker_->Publish({topics_.Hello(), instance_});
                           },
                       .received = [this](const BrokerMessage& message) { Take(message); },
                       .sent =
                           [this](int number) {
                             if (number == farewell_) ending_.quit();
                             publisher_.Sent(number);
                           }});
}

void BrokerLink::TakeConnected() {
  Log(QStringLiteral("connected to the broker"));
  isConnected_ = true;
  toldProblem_ = isSettled_ = false;
  keeper_.Connected(Now());
  services_.renewed();
  broker_->Subscribe(topics_.Holder());
  broker_->Subscribe(topics_.Availability());
  helloSubscription_ = broker_->Subscribe(topics_.Hello());
}

void BrokerLink::TakeDisconnected(const QString& reason) {
  if (isConnected_ || !toldProblem_) Log("not connected to the broker: " + reason);
  toldProblem_ = true;
  isConnected_ = isSettled_ = false;
  keeper_.Disconnected();
  publisher_.Stop();
}

void BrokerLink::Take(const BrokerMessage& message) {
  if (isClosing_) return;
  if (message.topic == topics_.Hello()) {
    if (message.payload == instance_) {
      keeper_.TakeHello(Now());
    } else if (keeper_.IsSettled()) {
      Log(QStringLiteral("another bridge has the same share, and should stand back"));
    }
  } else if (message.topic == topics_.Holder()) {
    if (const auto holder = ParseHolder(message.payload)) keeper_.TakeHolder(*holder, Now());
  } else if (message.topic == topics_.Availability()) {
    const bool isOnline = message.payload == kOnline;
    keeper_.TakeAvailability(isOnline);
    // The will of a connection that had this share before came late.
    if (!isOnline && isSettled_) SayAvailability(true);
  } else {
    services_.received(message);
  }
  FollowRole();
}

void BrokerLink::FollowRole() {
  const bool standsBack = keeper_.GetRole() == ShareKeeper::Role::StandingBack;
  if (std::exchange(stoodBack_, standsBack) != standsBack) {
    Log(standsBack ? QStringLiteral("stands back: another bridge has the share")
                   : QStringLiteral("takes the share over"));
  }
  if (HoldsShare() != holds_) {
    holds_ = HoldsShare();
    publisher_.Stop();
    // Not while the connection is telling something.
    QTimer::singleShot(0, &ending_, [this] { Connect(); });
  } else if (keeper_.IsSettled() && !std::exchange(isSettled_, true)) {
    Settle();
  }
}

/// The share is ours, and the broker has told what it knows.
void BrokerLink::Settle() {
  SayAvailability(true);
  for (const QByteArray& topic : services_.topics) broker_->Subscribe(topic);
  if (!keeper_.BrokerRemembers()) {
    publisher_.Forget(Publisher::Kind::State);
    publisher_.Forget(Publisher::Kind::Discovery);
  }
  publisher_.Start();
  Tick();
}

void BrokerLink::SayAvailability(bool isOnline) {
  const auto number =
      broker_->Publish({topics_.Availability(), isOnline ? kOnline : kOffline, true});
  if (!isOnline) farewell_ = number;
}

void BrokerLink::Tick() {
  keeper_.Tick(Now());
  if (isSettled_) {
    if (const auto beat = keeper_.TakeBeat(Now())) {
      broker_->Publish({topics_.Holder(), HolderMessage(*beat), true});
    }
  }
  FollowRole();
}
