#include "app/bridge/BrokerLink.h"

#include <utility>

#include <QTimer>
#include <QUuid>

#include "app/bridge/Log.h"

BrokerLink::BrokerLink(const BrokerAddress& address, const Topics& topics,
                       std::chrono::milliseconds takeover, Publisher::Make make,
                       std::size_t projectors, Services services)
    : address_(address),
      topics_(topics),
      services_(std::move(services)),
      instance_(QUuid::createUuid().toByteArray(QUuid::WithoutBraces)),
      keeper_(instance_.toStdString(), takeover, Now()),
      publisher_(projectors, std::move(make),
                 [this](const BrokerMessage& message) { return session_->Publish(message); }) {}

BrokerLink::~BrokerLink() {
  isClosing_ = true;
  if (!session_ || !session_->IsConnected() || !keeper_.IsSettled()) return;
  publisher_.Stop();
  session_->SayOffline();
}

QString BrokerLink::Start() {
  Connect();
  return session_->Error();
}

/// Makes a connection for the present role, in place of the one that is there.
void BrokerLink::Connect() {
  session_.reset();
  isSettled_ = false;
  publisher_.Restart();
  keeper_.Disconnected();
  holds_ = keeper_.GetRole() == ShareKeeper::Role::Holding;
  session_ = std::make_unique<BrokerSession>(
      address_, topics_, instance_, holds_,
      BrokerSession::Listener{.connected = [this] { TakeConnected(); },
                              .disconnected = [this] { TakeDisconnected(); },
                              .received = [this](const BrokerMessage& message) { Take(message); },
                              .sent = [this](int number) { publisher_.Sent(number); }});
}

void BrokerLink::TakeConnected() {
  isSettled_ = false;
  keeper_.Connected(Now());
  services_.renewed();
}

void BrokerLink::TakeDisconnected() {
  isSettled_ = false;
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
    const bool isOnline = message.payload == "online";
    keeper_.TakeAvailability(isOnline);
    // This is the late last will of an earlier connection with this share.
    if (!isOnline && isSettled_) session_->SayOnline();
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
  const bool holds = keeper_.GetRole() == ShareKeeper::Role::Holding;
  if (std::exchange(holds_, holds) != holds) {
    publisher_.Stop();
    // Not while the connection is telling something.
    QTimer::singleShot(0, &context_, [this] {
      if (!isClosing_) Connect();
    });
  } else if (keeper_.IsSettled() && !std::exchange(isSettled_, true)) {
    Settle();
  }
}

/// Called when the share is ours and the broker has sent its retained messages.
void BrokerLink::Settle() {
  session_->SayOnline();
  for (const QByteArray& topic : services_.topics) session_->Subscribe(topic);
  if (!keeper_.BrokerRemembers()) {
    publisher_.Forget(Publisher::Kind::State);
    publisher_.Forget(Publisher::Kind::Discovery);
  }
  publisher_.Start();
  Tick();
}

void BrokerLink::Tick() {
  keeper_.Tick(Now());
  if (isSettled_) {
    if (const auto beat = keeper_.TakeBeat(Now())) {
      session_->Publish({topics_.Holder(), HolderMessage(*beat, services_.share), true});
    }
  }
  FollowRole();
}
