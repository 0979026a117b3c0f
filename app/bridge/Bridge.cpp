#include "app/bridge/Bridge.h"

#include <utility>

#include "app/bridge/Log.h"
#include "app/bridge/StateMessage.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kTick{250};
constexpr std::chrono::seconds kObserving{2};
constexpr quint16 kNoticesPort = 4352;

FleetPolicy PolicyOf(const Options& options) {
  FleetPolicy policy;
  policy.interval = options.interval;
  policy.longestPause = std::max(policy.longestPause, options.interval);
  policy.seed = static_cast<std::uint32_t>(options.share.number);
  return policy;
}

}  // namespace

Bridge::Bridge(const Options& options, std::vector<FleetProfile> profiles,
               const SettingTexts& texts)
    : options_(options),
      topics_(options.prefix, options.share.Name()),
      texts_(texts),
      discovery_(models_, texts_, options_.commands.keys, topics_),
      projectors_(std::move(profiles), options.share),
      others_(projectors_, options.takeover),
      fleet_(projectors_, PolicyOf(options),
             [this](std::size_t projector) {
               if (link_) link_->Messages().Renew(Publisher::Kind::State, projector);
             }),
      desk_(options.commands, models_, texts_, topics_,
            {.find =
                 [this](const QByteArray& id, std::size_t& index) {
                   const auto found = projectors_.Find(id);
                   index = found.value_or(0);
                   return found ? &projectors_.Profile(*found) : nullptr;
                 },
             .run =
                 [this](std::size_t projector, const Command& command) {
                   return runner_.Add(projector, TargetOf(projectors_.Profile(projector)), command);
                 },
             .answer =
                 [this](BrokerMessage answer) { link_->Messages().Answer(std::move(answer)); }}),
      runner_(fleet_.Watched(), texts_,
              [this](std::size_t projector, const Command& command, const WorkResult& result) {
                FinishCommand(projector, command, result);
              }),
      drift_(fleet_, texts_, options_.snapshots),
      metrics_(fleet_, [this] { return Counts(); }) {
  QObject::connect(&tick_, &QTimer::timeout, &tick_, [this] { Tick(); });
  QObject::connect(&observing_, &QTimer::timeout, &observing_, [this] { fleet_.Observe(); });
}

QString Bridge::Start() {
  if (!projectors_.Error().isEmpty()) return projectors_.Error();
  if (projectors_.Count() == 0) {
    Log(projectors_.Simulated() == 0
            ? QStringLiteral("no projector belongs to the share")
            : QStringLiteral("the share has only simulated projectors, which are not watched"));
  }
  if (options_.listens) {
    const QString error = metrics_.Listen(options_.listenAddress, options_.listenPort);
    if (!error.isEmpty()) return "--listen: " + error;
  }
  if (!options_.textFile.isEmpty()) {
    if (QString error = metrics_.WriteTo(options_.textFile); !error.isEmpty()) return error;
  }
  const QString notices = options_.notices.toString();
  if (!options_.notices.isNull() &&
      fleet_.Watched().ListenForNotices(notices.toStdString(), kNoticesPort) == 0) {
    return QStringLiteral("cannot listen for notices at %1").arg(notices);
  }
  if (options_.broker) {
    StartBroker();
    if (const QString error = link_->Start(); !error.isEmpty()) return "--broker: " + error;
  }
  Log(QStringLiteral("watches %1 projectors").arg(projectors_.Count()));
  if (!options_.snapshots.isEmpty()) drift_.Start();
  tick_.start(kTick);
  observing_.start(kObserving);
  Tick();
  return {};
}

void Bridge::StartBroker() {
  BrokerLink::Services services{.commandSwitch = {},
                                .topics = {topics_.EveryHolder()},
                                .received = [this](const BrokerMessage& message) { Take(message); },
                                .renewed = [this] { desk_.TakeSwitch({}); },
                                .takenOver = [this] { fleet_.Forget(), drift_.PutOff(); },
                                .share = JsonOf(options_.share)};
  if (!desk_.Keys().IsEmpty()) {
    services.commandSwitch = topics_.CommandSwitch();
    services.topics.push_back(topics_.EverySet());
    services.topics.push_back(topics_.EveryKeySet());
  }
  if (!options_.discoveryPrefix.isEmpty()) {
    services.topics.push_back(options_.discoveryPrefix + "/status");
  }
  link_ = std::make_unique<BrokerLink>(
      *options_.broker, topics_, options_.takeover,
      [this](Publisher::Kind kind, std::size_t projector) { return MessageOf(kind, projector); },
      projectors_.Count(), std::move(services));
}

BrokerMessage Bridge::MessageOf(Publisher::Kind kind, std::size_t projector) {
  const FleetProfile& profile = projectors_.Profile(projector);
  const QByteArray& id = projectors_.Id(projector);
  if (kind == Publisher::Kind::Discovery) {
    if (options_.discoveryPrefix.isEmpty()) return {};
    return {options_.discoveryPrefix + "/device/" + id + "/config",
            discovery_.MessageOf(profile, id), true};
  }
  const LiveState state = fleet_.State(projector);
  // The broker may still have messages of an earlier run of the bridge.
  if (state.reachability == Reachability::NeverAsked) return {};
  return {topics_.State(id), StateMessage(profile, state), true};
}

void Bridge::Take(const BrokerMessage& message) {
  if (message.topic == topics_.CommandSwitch()) {
    desk_.TakeSwitch(message.payload);
    Log(desk_.TakesCommands() ? QStringLiteral("takes commands")
                              : QStringLiteral("commands are switched off"));
    if (!desk_.TakesCommands()) runner_.StopAll();
  } else if (topics_.IsHolder(message.topic)) {
    if (const QString told = others_.Take(message, Clock::now()); !told.isEmpty()) Log(told);
  } else if (message.topic == options_.discoveryPrefix + "/status") {
    const bool hasStarted = message.payload == "online" && !message.isRetained;
    if (hasStarted) link_->Messages().Forget(Publisher::Kind::Discovery);
  } else {
    desk_.Take(message, Clock::now());
  }
}

void Bridge::SwitchCommands(bool on) {
  desk_.SetSwitchedOn(on);
  Log(on ? QStringLiteral("a signal switched commands on")
         : QStringLiteral("a signal switched commands off"));
  if (!on) runner_.StopAll();
}

void Bridge::FinishCommand(std::size_t projector, const Command& command,
                           const WorkResult& result) {
  const bool isAsleep = fleet_.State(projector).power == PowerState::Standby;
  desk_.Finish(projectors_.Id(projector), command, result, isAsleep);
}

void Bridge::Tick() {
  if (link_) link_->Tick();
  fleet_.SetAsking(MayAsk());
  if (MayAsk()) return;
  runner_.StopAll();
  drift_.PutOff();
}

BridgeCounts Bridge::Counts() const {
  BridgeCounts counts{.version = ADVANCED_CONTROL_VERSION,
                      .share = options_.share.Name().toStdString(),
                      .projectors = projectors_.Count(),
                      .common = others_.Common(Clock::now()),
                      .holdsShare = MayAsk(),
                      .takesCommands = desk_.TakesCommands(),
                      .visits = fleet_.Tally(),
                      .answers = fleet_.Answers(),
                      .commands = desk_.Counts()};
  if (link_) {
    counts.isConnected = link_->IsConnected();
    counts.messages = link_->Messages().Counts();
  }
  MeasureProcess(counts);
  return counts;
}
