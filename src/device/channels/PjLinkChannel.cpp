#include "device/channels/PjLinkChannel.h"

#include <algorithm>
#include <cstdint>

#include "device/CommandCode.h"
#include "device/channels/PjLinkTcpSocket.h"

namespace AdvancedControl {

namespace {

using Clock = std::chrono::steady_clock;

constexpr PjtCommand kGetInput{.operation = PjtOperation::Get, .code = CommandCode::InputSource};

}  // namespace

PjLinkChannel::PjLinkChannel(const std::string& host, int port, const std::string& password,
                             const Limits& limits)
    : PjLinkChannel(host, port, password, limits, [&](PjLinkConnection& connection) {
        return std::make_unique<PjLinkTcpSocket>(host, static_cast<std::uint16_t>(port),
                                                 connection);
      }) {}

PjLinkChannel::PjLinkChannel(const std::string& host, int port, const std::string& password,
                             const Limits& limits, const MakePjLinkSocket& makeSocket)
    : limits_(limits),
      hasValidAddress_(!host.empty() && port >= 1 && port <= UINT16_MAX),
      address_(host + ':' + std::to_string(port)),
      session_(password, {.connect = limits.connect, .answer = limits.answer}),
      socket_(makeSocket(session_.Connection())),
      inquiry_(limits.firstPause, limits.longestPause) {}

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
    inquiry_.Inputs().SetPresent(reply.value);
  }
  return reply;
}

void PjLinkChannel::Run(const auto& work) {
  socket_->ReceiveUnsolicited();
  work();
  bool wasUsed = false;
  for (auto step = session_.Next(Clock::now()); step.kind != PjLinkStep::Kind::Finished;
       step = session_.Next(Clock::now())) {
    wasUsed = true;
    socket_->Perform(step);
    // Some projectors close the connection after each reply; this detects it before the next
    // request.
    socket_->ReceiveUnsolicited();
    if (session_.State() == ConnectionState::Connecting) state_ = ConnectionState::Connecting;
  }
  if (wasUsed) state_ = session_.State();
  power_ = session_.Power();
  inquiry_.CheckClass(session_.ProtocolClass());
}

bool PjLinkChannel::CanConnect() {
  if (!hasValidAddress_) state_ = ConnectionState::WrongParameters;
  return hasValidAddress_;
}

PjLinkResult PjLinkChannel::Ask(const PjLinkQuestion& question) {
  if (!CanConnect()) return {};
  Run([&] { session_.Begin(question, Clock::now()); });
  return session_.Result();
}

std::pair<std::vector<PjLinkInput>, bool> PjLinkChannel::AskForInputs() {
  PjLinkInputs& inputs = inquiry_.Inputs();
  const auto asked =
      inputs.AskForAll([this](const PjLinkQuestion& question) { return Ask(question); });
  const auto known = inputs.Known();
  if (!asked.isComplete) inputs.Forget();
  return {known, !asked.isLost};
}

std::pair<std::optional<PjLinkInput>, bool> PjLinkChannel::AskForPresentInput() {
  session_.KeepNext();
  const PjtReply reply = Execute(kGetInput);
  if (!IsSuccess(kGetInput.operation, reply.result)) return {std::nullopt, reply.answered};
  const auto& known = inquiry_.Inputs().Known();
  const auto input = std::ranges::find(known, reply.value, &PjLinkInput::number);
  if (input != known.end()) return {*input, true};
  const PjLinkResult result = Ask(PjLinkInputs::NameOf(reply.value).value());
  return {PjLinkInputs::Named(reply.value, result.text), result.kind != PjLinkResult::Kind::Lost};
}

std::optional<SourceList> PjLinkChannel::Inputs() { return inquiry_.Report(); }

bool PjLinkChannel::UseIdleTime() {
  const auto question = inquiry_.NextQuestion(Clock::now());
  if (!question || state_ != ConnectionState::Connected) return false;
  inquiry_.Take(Ask(*question), Clock::now());
  state_ = ConnectionState::Connected;  // no command has failed
  return inquiry_.NextQuestion(Clock::now()).has_value();
}

bool PjLinkChannel::TendConnection(std::chrono::milliseconds unused) {
  // A projector that closes after its reply may already have done so.
  // unreachable: with certainty; few projectors have closed by then
  const bool wasOpen = socket_->IsOpen() || state_ == ConnectionState::Connected;
  if (socket_->IsOpen()) socket_->ReceiveUnsolicited();
  if (socket_->IsOpen() && unused >= limits_.unused) socket_->Close();
  if (wasOpen && !socket_->IsOpen()) state_ = ConnectionState::Unused;
  return socket_->IsOpen();
}

PjLinkFacts PjLinkChannel::Facts() const {
  return {.protocolClass = session_.ProtocolClass(), .inputs = inquiry_.AllInputs()};
}

void PjLinkChannel::Remember(const PjLinkFacts& facts) {
  if (facts.protocolClass) session_.RememberClass(*facts.protocolClass);
  inquiry_.Remember(facts.inputs, facts.protocolClass);
}

}  // namespace AdvancedControl
