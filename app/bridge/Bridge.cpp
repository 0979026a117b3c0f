#include "app/bridge/Bridge.h"

#include <utility>

#include "app/bridge/Log.h"
#include "app/bridge/StateMessage.h"
#include "fleet/WholeFile.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kTick{250};
constexpr std::chrono::seconds kObserving{2};
constexpr std::chrono::seconds kWriting{15};
constexpr std::chrono::milliseconds kRendered{500};
constexpr int kNotFound = 404;
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
      fleet_(std::move(profiles), options.share, PolicyOf(options),
             [this](std::size_t projector) {
               if (link_) link_->Messages().Renew(Publisher::Kind::State, projector);
             }),
      desk_(options.commands, models_, texts_, topics_,
            {.find =
                 [this](const QByteArray& id, std::size_t& index) {
                   const auto found = fleet_.Find(id);
                   index = found.value_or(0);
                   return found ? &fleet_.Profile(*found) : nullptr;
                 },
             .run =
                 [this](std::size_t projector, const Command& command) {
                   return runner_.Add(projector, TargetOf(fleet_.Profile(projector)), command);
                 },
             .answer =
                 [this](BrokerMessage answer) { link_->Messages().Answer(std::move(answer)); }}),
      runner_(fleet_.Watched(), texts_,
              [this](std::size_t projector, const Command& command, const WorkResult& result) {
                FinishCommand(projector, command, result);
              }),
      drift_(fleet_, texts_, options_.snapshots),
      listener_([this](const HttpRequest& request) { return AnswerRequest(request); }) {
  QObject::connect(&tick_, &QTimer::timeout, &tick_, [this] { Tick(); });
  QObject::connect(&observing_, &QTimer::timeout, &observing_, [this] { fleet_.Observe(); });
  QObject::connect(&writing_, &QTimer::timeout, &writing_, [this] { WriteTextFile(); });
}

QString Bridge::Start() {
  if (!fleet_.Error().isEmpty()) return fleet_.Error();
  if (fleet_.Count() == 0) Log(QStringLiteral("the share has no projector that is not simulated"));
  if (options_.listens) {
    const auto listening = listener_.Listen(options_.listenAddress, options_.listenPort);
    if (listening.port == 0) return "--listen: " + listening.error;
    Log(QStringLiteral("serves metrics at port %1").arg(listening.port));
  }
  if (!options_.textFile.isEmpty()) {
    if (QString error = CheckWholeFile(options_.textFile); !error.isEmpty()) return error;
    writing_.start(kWriting);
    QTimer::singleShot(kObserving, &writing_, [this] { WriteTextFile(); });
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
  Log(QStringLiteral("watches %1 projectors").arg(fleet_.Count()));
  if (!options_.snapshots.isEmpty()) drift_.Start([this] { return MayAsk(); });
  tick_.start(kTick);
  observing_.start(kObserving);
  Tick();
  return {};
}

void Bridge::StartBroker() {
  BrokerLink::Services services{.topics = {},
                                .received = [this](const BrokerMessage& message) { Take(message); },
                                .renewed = [this] { desk_.TakeSwitch({}); }};
  if (!desk_.Keys().IsEmpty()) {
    // The switch first, so that its message comes before any command.
    services.topics = {topics_.CommandSwitch(), topics_.EverySet(), topics_.EveryKeySet()};
  }
  if (!options_.discoveryPrefix.isEmpty()) {
    services.topics.push_back(options_.discoveryPrefix + "/status");
  }
  link_ = std::make_unique<BrokerLink>(
      *options_.broker, topics_, options_.takeover,
      [this](Publisher::Kind kind, std::size_t projector) { return MessageOf(kind, projector); },
      fleet_.Count(), std::move(services));
}

BrokerMessage Bridge::MessageOf(Publisher::Kind kind, std::size_t projector) {
  const FleetProfile& profile = fleet_.Profile(projector);
  const QByteArray& id = fleet_.Id(projector);
  if (kind == Publisher::Kind::Discovery) {
    if (options_.discoveryPrefix.isEmpty()) return {};
    return {options_.discoveryPrefix + "/device/" + id + "/config",
            discovery_.MessageOf(profile, id), true};
  }
  const LiveState state = fleet_.State(projector);
  // The broker may have what another run of the bridge knew.
  if (state.reachability == Reachability::NeverAsked) return {};
  return {topics_.State(id), StateMessage(profile, state), true};
}

void Bridge::Take(const BrokerMessage& message) {
  if (message.topic == topics_.CommandSwitch()) {
    desk_.TakeSwitch(message.payload);
    Log(desk_.TakesCommands() ? QStringLiteral("takes commands")
                              : QStringLiteral("commands are switched off"));
    if (!desk_.TakesCommands()) runner_.StopAll();
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
  desk_.Finish(fleet_.Id(projector), command, result, isAsleep);
}

void Bridge::Tick() {
  if (link_) link_->Tick();
  fleet_.SetAsking(MayAsk());
  if (!MayAsk()) runner_.StopAll();
}

BridgeCounts Bridge::Counts() const {
  BridgeCounts counts{.version = ADVANCED_CONTROL_VERSION,
                      .share = options_.share.Name().toStdString(),
                      .projectors = fleet_.Count(),
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

const QByteArray& Bridge::AllMetrics() {
  if (const auto now = Clock::now(); rendered_.isEmpty() || now - renderedAt_ > kRendered) {
    MetricsText text;
    if (MayAsk()) AddProjectors(text, fleet_.States());
    AddBridge(text, Counts());
    rendered_ = text.Text();
    renderedAt_ = now;
  }
  return rendered_;
}

QByteArray Bridge::Probe(std::size_t projector) const {
  MetricsText text;
  const MeasuredProjector measured{&fleet_.Profile(projector), fleet_.State(projector)};
  AddProjectors(text, {&measured, 1});
  return text.Text();
}

MetricsListener::Answer Bridge::AnswerRequest(const HttpRequest& request) {
  if (request.Path() == "/metrics") return {.body = AllMetrics()};
  if (request.Path() == "/healthz") return {.body = "ok\n"};
  if (request.Path() != "/probe") {
    return {kNotFound, "Only /metrics, /probe?target=NAME and /healthz are here.\n"};
  }
  const QByteArray target = request.Parameter("target");
  const auto projector = fleet_.FindName(target.toStdString());
  if (!projector) return {kNotFound, "This share has no projector of that name.\n"};
  return {.body = Probe(*projector)};
}

void Bridge::WriteTextFile() {
  const QString error = WriteWholeFile(options_.textFile, AllMetrics());
  if (!error.isEmpty() && !failedToWrite_) Log(error);
  failedToWrite_ = !error.isEmpty();
}
