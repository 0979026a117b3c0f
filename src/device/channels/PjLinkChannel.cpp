#include "device/channels/PjLinkChannel.h"

#include <algorithm>
#include <thread>

#include <QDeadlineTimer>
#include <QTcpSocket>

#include "device/CommandCode.h"
#include "device/channels/ConnectSocket.h"

namespace AdvancedControl {

namespace {

constexpr qint64 kReadBuffer = 512;
constexpr int kMostPieces = 8;  // of unsolicited data, read at once
constexpr PjtCommand kGetInput{.operation = PjtOperation::Get, .code = CommandCode::InputSource};

}  // namespace

PjLinkChannel::PjLinkChannel(std::string host, int port, const std::string& password,
                             const Limits& limits)
    : host_(std::move(host)),
      port_(port),
      limits_(limits),
      session_(password, {.connect = limits.connect, .answer = limits.answer}) {}

PjLinkChannel::~PjLinkChannel() = default;

bool PjLinkChannel::Has(const PjtCommand& command) {
  return PjLinkMapping::Find(command) != nullptr;
}

PjtReply PjLinkChannel::Execute(const PjtCommand& command) {
  session_.GiveUpAfter(longest_);
  if (!CanConnect() && PjLinkMapping::Find(command)) {
    return {.result = RefusedResult(command.operation), .answered = false, .unsent = true};
  }
  Run([&] { session_.Begin(command, Clock::now()); });
  session_.GiveUpAfter(limits_.answer);
  const PjtReply reply = session_.Reply();
  const auto* const mapping = PjLinkMapping::Find(command);
  const bool readsInput = IsRead(command.operation) && mapping && mapping->command == "INPT";
  if (readsInput && reply.answered && IsSuccess(command.operation, reply.result)) {
    inputs_.SetPresent(reply.value);
  }
  return reply;
}

void PjLinkChannel::Run(const auto& work) {
  ReceiveUnsolicited();
  work();
  const ConnectionState before = session_.State();
  bool wasUsed = false;
  for (auto step = session_.Next(Clock::now()); step.kind != PjLinkStep::Kind::Finished;
       step = session_.Next(Clock::now())) {
    wasUsed = true;
    Drive(step);
    // Some projectors close the connection after each reply; this detects it before the next
    // request.
    ReceiveUnsolicited();
    if (session_.State() == ConnectionState::Connecting) state_ = ConnectionState::Connecting;
  }
  if (wasUsed || session_.State() != before) state_ = session_.State();
  power_ = session_.Power();
  // Another class means another projector than the remembered one.
  const auto known = session_.ProtocolClass();
  if (rememberedClass_ && known && known != rememberedClass_) {
    inputs_.Forget();
    rememberedClass_.reset();
  }
}

/// Reads what arrived without a request: it answers no later request, and may be the end of the
/// connection.
void PjLinkChannel::ReceiveUnsolicited() {
  for (int i = 0; socket_ && i < kMostPieces && socket_->waitForReadyRead(0); ++i) {
    session_.Connection().Received(socket_->readAll().toStdString(), Clock::now());
  }
  Listen(std::chrono::milliseconds::zero());
}

void PjLinkChannel::Drive(const PjLinkStep& step) {
  switch (step.kind) {
    case PjLinkStep::Kind::Connect:
      return Connect(step);
    case PjLinkStep::Kind::Send:
      socket_->write(step.bytes.data(), static_cast<qint64>(step.bytes.size()));
      return;
    case PjLinkStep::Kind::Close:
      socket_.reset();
      return;
    default:
      return Listen(
          std::max(std::chrono::ceil<std::chrono::milliseconds>(step.until - Clock::now()),
                   std::chrono::milliseconds::zero()));
  }
}

void PjLinkChannel::Connect(const PjLinkStep& step) {
  auto problem = ConnectionState::NotReachable;
  socket_ = ConnectSocket(host_, static_cast<std::uint16_t>(port_), kReadBuffer,
                          QDeadlineTimer(step.until), problem);
  if (socket_) {
    session_.Connection().Connected();
  } else {
    session_.Connection().NotConnected(problem, Clock::now());
  }
}

/// Passes received data on to the session, for at most `time`.
void PjLinkChannel::Listen(std::chrono::milliseconds time) {
  if (!socket_) return std::this_thread::sleep_for(time);
  const bool isReady =
      socket_->bytesAvailable() > 0 || socket_->waitForReadyRead(static_cast<int>(time.count()));
  if (isReady) session_.Connection().Received(socket_->readAll().toStdString(), Clock::now());
  if (socket_->state() == QAbstractSocket::ConnectedState || socket_->bytesAvailable() > 0) return;
  socket_.reset();
  session_.Connection().Closed(Clock::now());
}

bool PjLinkChannel::CanConnect() {
  const bool can = !host_.empty() && port_ >= 1 && port_ <= UINT16_MAX;
  if (!can) state_ = ConnectionState::WrongParameters;
  return can;
}

PjLinkResult PjLinkChannel::Ask(const PjLinkQuestion& question) {
  if (!CanConnect()) return {};
  Run([&] { session_.Begin(question, Clock::now()); });
  return session_.Result();
}

std::pair<std::vector<PjLinkInput>, bool> PjLinkChannel::AskForInputs() {
  const auto asked =
      inputs_.AskForAll([this](const PjLinkQuestion& question) { return Ask(question); });
  const auto known = inputs_.Known();
  if (!asked.isComplete) inputs_.Forget();
  return {known, !asked.isLost};
}

std::pair<std::optional<PjLinkInput>, bool> PjLinkChannel::AskForPresentInput() {
  session_.KeepNext();
  const PjtReply reply = Execute(kGetInput);
  if (!IsSuccess(kGetInput.operation, reply.result)) return {std::nullopt, reply.answered};
  const auto& known = inputs_.Known();
  const auto input = std::ranges::find(known, reply.value, &PjLinkInput::number);
  if (input != known.end()) return {*input, true};
  const auto question = PjLinkInputs::NameOf(reply.value);
  const PjLinkResult result = question ? Ask(*question) : PjLinkResult{};
  return {PjLinkInputs::Named(reply.value, result.text), result.kind != PjLinkResult::Kind::Lost};
}

std::optional<SourceList> PjLinkChannel::Inputs() {
  asksForInputs_ = true;
  const std::lock_guard lock(inputsMutex_);
  return reportedInputs_;
}

bool PjLinkChannel::UseIdleTime() {
  const auto question = inputs_.Next();
  const bool isConnected = state_ == ConnectionState::Connected;
  if (!asksForInputs_ || !isConnected || !question || Clock::now() < nextTry_) return false;
  if (inputs_.Take(Ask(*question))) {
    if (inputs_.Next()) return true;
    pause_ = limits_.firstPause;
    const std::lock_guard lock(inputsMutex_);
    reportedInputs_ = SourcesOf(inputs_.Known(), InputCodes::SharedNames);
    return false;
  }
  nextTry_ = Clock::now() + pause_;
  pause_ = std::min(2 * pause_, limits_.longestPause);
  state_ = ConnectionState::Connected;  // no command has failed
  return false;
}

bool PjLinkChannel::TendConnection(std::chrono::milliseconds unused) {
  // A projector that closes after its reply may already have done so.
  const bool wasOpen = socket_ != nullptr || state_ == ConnectionState::Connected;
  if (socket_) ReceiveUnsolicited();
  if (socket_ && unused >= limits_.unused) {
    socket_.reset();
    session_.Connection().Closed(Clock::now());
  }
  if (wasOpen && !socket_) state_ = ConnectionState::Unused;
  return socket_ != nullptr;
}

PjLinkFacts PjLinkChannel::Facts() const {
  const bool areComplete = inputs_.IsListKnown() && !inputs_.Next();
  return {.protocolClass = session_.ProtocolClass(),
          .inputs = areComplete ? inputs_.Known() : std::vector<PjLinkInput>()};
}

void PjLinkChannel::Remember(const PjLinkFacts& facts) {
  rememberedClass_ = facts.protocolClass;
  if (rememberedClass_) session_.RememberClass(*rememberedClass_);
  if (facts.inputs.empty()) return;
  inputs_.Remember(facts.inputs);
  const std::lock_guard lock(inputsMutex_);
  reportedInputs_ = SourcesOf(facts.inputs, InputCodes::SharedNames);
}

std::string PjLinkChannel::Address() const { return host_ + ':' + std::to_string(port_); }

}  // namespace AdvancedControl
