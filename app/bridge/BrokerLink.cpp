#include "app/bridge/BrokerLink.h"

#include <utility>

#include <QUuid>

#include "app/bridge/Log.h"

namespace {

using Clock = std::chrono::steady_clock;

}  // namespace

BrokerLink::BrokerLink(const BrokerAddress& address, const Topics& topics,
                       std::chrono::milliseconds takeover, Publisher::Make make,
                       std::size_t projectors, Services services)
    : address_(address),
      topics_(topics),
      services_(std::move(services)),
      instance_(QUuid::createUuid().toByteArray(QUuid::WithoutBraces)),
      // The others count from the last claim, up to a third of the time before the hang.
      hang_(takeover / 2, Clock::now()),
      keeper_(instance_.toStdString(), takeover, Clock::now()),
      publisher_(projectors, std::move(make), [this](const BrokerMessage& message) {
        return hang_.HasHung(Clock::now()) ? std::nullopt : session_->Publish(message);
      }) {
  connecting_.setSingleShot(true);
  QObject::connect(&connecting_, &QTimer::timeout, &connecting_, [this] {
    if (!isClosing_) Connect();
  });
}

BrokerLink::~BrokerLink() {
  isClosing_ = true;
  if (!session_ || !session_->IsConnected() || !keeper_.IsSettled()) return;
  publisher_.Stop();
  if (const auto claim = keeper_.GiveUp()) Publish(*claim);
  session_->SayOffline();
}

QString BrokerLink::Start() {
  Connect();
  return session_->Error();
}

bool BrokerLink::MayAsk() const { return keeper_.MayAsk(Clock::now()); }

/// Makes a connection for the present role, in place of the one that is there.
void BrokerLink::Connect() {
  session_.reset();
  isSettled_ = false;
  publisher_.Restart();
  keeper_.Disconnected();
  holds_ = keeper_.GetRole() == ShareKeeper::Role::Holding;
  session_ = std::make_unique<BrokerSession>(
      address_, topics_, instance_, holds_,
      BrokerSession::Listener{.connected =
                                  [this] {
                                    pauses_.Connected();
                                    isSettled_ = false;
                                    keeper_.Connected();
                                    services_.renewed();
                                  },
                              .lost = [this] { ConnectAgain(pauses_.Next()); },
                              .received = [this](const BrokerMessage& message) { Take(message); },
                              .sent = [this](int number) { publisher_.Sent(number); }});
}

/// Before the next connection is settled, nothing is sent and no command is taken.
void BrokerLink::ConnectAgain(std::chrono::milliseconds pause) {
  isSettled_ = false;
  keeper_.Disconnected();
  publisher_.Stop();
  connecting_.start(pause);
}

void BrokerLink::Take(const BrokerMessage& message) {
  if (isClosing_) return;
  if (hang_.HasHung(Clock::now())) Tick();
  if (message.topic == topics_.Hello()) {
    if (message.payload == instance_) {
      keeper_.TakeHello();
    } else if (keeper_.IsSettled()) {
      Log(QStringLiteral("another bridge has the same share, and should stand back"));
      const bool sentBefore = keeper_.TakeOtherHello(message.payload.toStdString());
      if (sentBefore) publisher_.Forget(Publisher::Kind::State);
    }
  } else if (message.topic == topics_.Holder()) {
    if (const auto claim = ParseClaim(message.payload)) keeper_.TakeClaim(*claim);
    FollowRole();  // another bridge had the share, even if it has given it up by now
  } else if (message.topic == topics_.Availability()) {
    const bool isOnline = message.payload == "online";
    keeper_.TakeAvailability(isOnline);
    // This is the late last will of an earlier connection with this share.
    if (!isOnline && keeper_.IsSettled()) session_->SayOnline();
  } else if (keeper_.IsSettled()) {
    services_.received(message);
  }
  Tick();
}

void BrokerLink::FollowRole() {
  const bool standsBack = keeper_.GetRole() == ShareKeeper::Role::StandingBack;
  if (std::exchange(stoodBack_, standsBack) != standsBack) {
    Log(standsBack ? QStringLiteral("stands back: another bridge has the share")
                   : QStringLiteral("takes the share over"));
    if (!standsBack) services_.takenOver();
  }
  const bool holds = keeper_.GetRole() == ShareKeeper::Role::Holding;
  if (std::exchange(holds_, holds) != holds) {
    publisher_.Stop();
    // Not while the connection is telling something.
    connecting_.start(0);
  } else if (keeper_.IsSettled() && !std::exchange(isSettled_, true)) {
    Settle();
  }
}

/// Called when the share is ours and the broker has sent its retained messages.
void BrokerLink::Settle() {
  session_->SayOnline();
  if (!services_.commandSwitch.isEmpty()) session_->SubscribeAtOnce(services_.commandSwitch);
  for (const QByteArray& topic : services_.topics) session_->Subscribe(topic);
  if (!keeper_.BrokerRemembers()) {
    publisher_.Forget(Publisher::Kind::State);
    publisher_.Forget(Publisher::Kind::Discovery);
  }
  publisher_.Start();
  Tick();
}

void BrokerLink::Tick() {
  // Another bridge may have the share by now, and commands that came meanwhile are old.
  const auto now = Clock::now();
  if (hang_.HasHung(now) && isSettled_) ConnectAgain({});
  hang_.Live(now);
  keeper_.Tick(now);
  if (isSettled_) {
    if (const auto claim = keeper_.TakeBeat(now)) Publish(*claim);
  }
  FollowRole();
}

void BrokerLink::Publish(const Claim& claim) {
  session_->Publish({topics_.Holder(), ClaimMessage(claim, services_.share), true});
}
