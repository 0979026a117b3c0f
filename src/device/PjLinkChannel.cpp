#include "device/PjLinkChannel.h"

#include <algorithm>
#include <array>

#include <QDeadlineTimer>
#include <QTcpSocket>

#include "device/CommandCode.h"
#include "device/ConnectSocket.h"
#include "device/PjLinkLine.h"

namespace {

using Op = PjtOperation;
using Parameter = std::optional<std::string>;

constexpr qint64 kReadBuffer = 512;  // more than any line

enum class Class {
  First,
  Second,
  Either,  ///< In both, with more values in the second.
};

/// One operation as PJLink has it.
struct Mapping {
  Op operation;
  std::uint16_t code;
  std::string_view command;
  Class protocolClass;
  Parameter (*parameter)(int value);  ///< Nothing when there is no such value.
  std::optional<int> (*value)(std::string_view) = nullptr;  ///< Of reads.
};

template <char on, char off>
Parameter OneOf(int value) {
  return value == 0 ? Parameter{{off}} : value == 1 ? Parameter{{on}} : std::nullopt;
}

template <char part>
Parameter PartMuted(int value) {
  const Parameter state = OneOf<'1', '0'>(value);
  return state ? Parameter{part + *state} : std::nullopt;
}

Parameter Query(int) { return std::string(PjLink::kQuery); }
Parameter On(int) { return "1"; }
Parameter Off(int) { return "0"; }

constexpr auto kFreezeOrRun = OneOf<'1', '0'>;
constexpr auto kPictureMuted = PartMuted<'1'>;
constexpr auto kSoundMuted = PartMuted<'2'>;

constexpr Mapping kMappings[] = {
    {Op::Get, CommandCode::RunningState, "POWR", Class::First, Query, PjLink::PowerStatus},
    {Op::SetPowerOn, 0, "POWR", Class::First, On},
    {Op::SetPowerOff, 0, "POWR", Class::First, Off},
    {Op::Get, CommandCode::InputSource, "INPT", Class::Either, Query, PjLink::InputNumber},
    {Op::GetInputSource, 0, "INPT", Class::Either, Query, PjLink::InputNumber},
    {Op::Set, CommandCode::InputSource, "INPT", Class::Either, PjLink::InputCode},
    {Op::Get, CommandCode::ErrorStatus, "ERST", Class::First, Query, PjLink::ErrorStatus},
    {Op::Get, CommandCode::BlankState, "AVMT", Class::First, Query, PjLink::Blank},
    {Op::SetBlank, 0, "AVMT", Class::First, kPictureMuted},
    {Op::Set, CommandCode::BlankState, "AVMT", Class::First, kPictureMuted},
    {Op::Get, CommandCode::Mute, "AVMT", Class::First, Query, PjLink::Mute},
    {Op::SetMute, 0, "AVMT", Class::First, kSoundMuted},
    {Op::Set, CommandCode::Mute, "AVMT", Class::First, kSoundMuted},
    {Op::Get, CommandCode::Freeze, "FREZ", Class::Second, Query, PjLink::Switch},
    {Op::SetFreeze, 0, "FREZ", Class::Second, kFreezeOrRun},
    {Op::Set, CommandCode::Freeze, "FREZ", Class::Second, kFreezeOrRun},
    {Op::Inc, CommandCode::Volume, "SVOL", Class::Second, On},
    {Op::Dec, CommandCode::Volume, "SVOL", Class::Second, Off},
    {Op::Get, CommandCode::LampTime, "LAMP", Class::First, Query, PjLink::LampHours},
    {Op::Get, CommandCode::FilterTime, "FILT", Class::Second, Query, PjLink::Hours},
};

const Mapping* Find(const PjtCommand& command) {
  const auto* const found = std::ranges::find_if(kMappings, [&](const Mapping& mapping) {
    return mapping.operation == command.operation && mapping.code == command.code;
  });
  return found == std::end(kMappings) ? nullptr : found;
}

bool IsError(std::string_view answer) {
  return answer.size() == 4 && PjLink::SameWord(answer.substr(0, 3), "ERR");
}

std::string NameByCode(std::string_view code) {
  constexpr std::array kKinds{"RGB", "Video", "Digital", "Storage", "Network", "Internal"};
  return std::string(kKinds.at(static_cast<std::size_t>(code[0] - '1'))) + ' ' + code[1];
}

}  // namespace

SourceList SourcesOf(const std::vector<PjLinkInput>& inputs) {
  SourceList sources;
  for (const PjLinkInput& input : inputs) {
    if (sources.count == SourceList::kCapacity) break;
    const auto next = static_cast<std::size_t>(sources.count++);
    sources.names[next] = MakeNameSlot(input.name);
    sources.firstValues[next] = input.number;
    sources.secondValues[next] = input.number;
  }
  return sources;
}

PjLinkChannel::PjLinkChannel(std::string host, int port, std::string password, const Limits& limits)
    : host_(std::move(host)),
      port_(port),
      password_(std::move(password)),
      limits_(limits),
      pause_(limits.firstPause) {}

PjLinkChannel::~PjLinkChannel() = default;

PjtReply PjLinkChannel::Execute(const PjtCommand& command) {
  if (asksForInputs_ && isAnswering_ && IsRead(command.operation) && Clock::now() >= nextTry_) {
    AskForInputs();
  }
  const PjtReply reply = Perform(command);
  if (reply.offered) isAnswering_ = reply.answered;
  return reply;
}

PjtReply PjLinkChannel::Perform(const PjtCommand& command) {
  const int refused = RefusedResult(command.operation);
  const Mapping* const mapping = Find(command);
  if (!mapping) return {.result = refused, .offered = false};
  const Parameter parameter = mapping->parameter(command.first);
  if (!parameter) return {.result = refused};

  const auto ask = [&]() -> std::optional<std::string> {
    if (!Connect()) return std::nullopt;
    if (mapping->protocolClass == Class::First) return Ask('1', mapping->command, *parameter);
    if (mapping->protocolClass == Class::Second && projectorClass_ == '1') {
      return std::string(PjLink::kUndefined);
    }
    return Ask(projectorClass_, mapping->command, *parameter);
  };
  const bool reused = IsUsable();
  Parameter answer = ask();
  const bool isRead = mapping->value != nullptr;
  if (!answer && reused && isRead && state_ == ConnectionState::Lost) answer = ask();
  if (!answer) return {.result = refused, .answered = false};

  if (PjLink::SameWord(*answer, PjLink::kUndefined)) return {.result = refused, .offered = false};
  const std::optional<int> value = isRead ? mapping->value(*answer)
                                   : PjLink::SameWord(*answer, PjLink::kDone) ? std::optional(0)
                                                                              : std::nullopt;
  if (!value) return {.result = refused};
  return {.result = AcceptedResult(command.operation), .value = static_cast<std::int16_t>(*value)};
}

std::optional<PjLinkDescription> PjLinkChannel::Describe() {
  PjLinkDescription description;
  for (const auto& [command, text] : {std::pair{"NAME", &description.name},
                                      {"INF1", &description.maker},
                                      {"INF2", &description.product}}) {
    auto answer = AskText('1', command);
    if (!answer) return std::nullopt;
    *text = std::move(*answer);
  }
  const auto codes = InputCodes();
  if (!codes) return std::nullopt;
  for (const std::string& code : *codes) {
    auto input = Input(code);
    if (!input) return std::nullopt;
    description.inputs.push_back(std::move(*input));
  }
  description.protocolClass = projectorClass_ - '0';
  Drop(ConnectionState::Unused);
  return description;
}

std::optional<SourceList> PjLinkChannel::Inputs() {
  const std::lock_guard lock(toldMutex_);
  if (!told_) asksForInputs_ = true;
  return told_;
}

void PjLinkChannel::AskForInputs() {
  const auto end = Clock::now() + limits_.inputs;
  do {
    if (!AskForNextInput()) {
      nextTry_ = Clock::now() + pause_;
      pause_ = std::min(2 * pause_, limits_.longestPause);
      return;
    }
  } while (asksForInputs_ && Clock::now() < end);
}

bool PjLinkChannel::AskForNextInput() {
  if (codes_.empty()) {
    codes_ = InputCodes().value_or(std::vector<std::string>());
    if (codes_.size() > SourceList::kCapacity) codes_.resize(SourceList::kCapacity);
    return !codes_.empty();
  }
  auto input = Input(codes_[inputs_.size()]);
  if (!input) return false;
  inputs_.push_back(std::move(*input));
  if (inputs_.size() == codes_.size()) {
    const std::lock_guard lock(toldMutex_);
    told_ = SourcesOf(inputs_);
    asksForInputs_ = false;
  }
  return true;
}

std::optional<std::vector<std::string>> PjLinkChannel::InputCodes() {
  if (!Connect()) return std::nullopt;
  const auto list = AskText(projectorClass_, "INST");
  if (!list) return std::nullopt;
  return PjLink::InputCodes(*list).value_or(std::vector<std::string>());
}

std::optional<PjLinkInput> PjLinkChannel::Input(const std::string& code) {
  if (!Connect()) return std::nullopt;
  std::string name;
  if (projectorClass_ != '1') {
    auto answer = AskText(projectorClass_, "INNM", std::string(PjLink::kQuery) + code);
    if (!answer) return std::nullopt;
    name = std::move(*answer);
  }
  return PjLinkInput{.number = *PjLink::InputNumber(code),
                     .name = name.empty() ? NameByCode(code) : std::move(name)};
}

/// Whether the connection stands, and nothing came that nobody asked for.
bool PjLinkChannel::IsUsable() {
  if (!socket_) return false;
  socket_->waitForReadyRead(0);
  const QByteArray rest = socket_->peek(2);
  return (rest.isEmpty() || rest == "\n") && socket_->state() == QAbstractSocket::ConnectedState;
}

bool PjLinkChannel::Open() {
  if (host_.empty() || port_ < 1 || port_ > UINT16_MAX) {
    Drop(ConnectionState::WrongParameters);
    return false;
  }
  state_ = ConnectionState::Connecting;
  const QDeadlineTimer deadline(limits_.connect);
  auto problem = ConnectionState::NotReachable;
  socket_ = ConnectSocket(host_, static_cast<std::uint16_t>(port_), kReadBuffer, deadline, problem);
  if (!socket_) {
    Drop(problem);
    return false;
  }
  const auto greeting = ReadLine(PjLink::kLongestLine, deadline);
  if (!greeting) return false;
  const auto seed = PjLink::ParseGreeting(*greeting);
  if (!seed) {
    Drop(ConnectionState::NotUnderstood);
    return false;
  }
  proof_ = seed->empty() ? std::string() : PjLink::Digest(*seed, password_);
  const auto answer = Ask('1', "CLSS", PjLink::kQuery);
  if (!answer) return false;
  projectorClass_ = *answer == "2" ? '2' : '1';
  state_ = ConnectionState::Connected;
  return true;
}

void PjLinkChannel::Drop(ConnectionState state) {
  socket_.reset();
  state_ = state;
}

std::optional<std::string> PjLinkChannel::ReadLine(std::size_t bound,
                                                   const QDeadlineTimer& deadline) {
  const auto longest = static_cast<qsizetype>(bound);
  while (true) {
    const QByteArray seen = socket_->peek(longest + 1);
    const qsizetype start = seen.startsWith('\n') ? 1 : 0;  // some end their lines with CR LF
    const auto end = seen.indexOf('\r');
    if (end >= 0 && end - start < longest) {
      socket_->skip(end + 1);
      return seen.sliced(start, end - start).toStdString();
    }
    if (seen.size() - start >= longest) {
      Drop(ConnectionState::NotUnderstood);
      return std::nullopt;
    }
    if (!socket_->waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
      Drop(socket_->state() == QAbstractSocket::ConnectedState ? ConnectionState::NoAnswer
                                                               : ConnectionState::Lost);
      return std::nullopt;
    }
  }
}

/// As `Ask` on a connection that need not be usable yet, without what is no text; empty where the
/// projector tells an error.
std::optional<std::string> PjLinkChannel::AskText(char protocolClass, std::string_view command,
                                                  std::string_view parameter) {
  if (!Connect()) return std::nullopt;
  const auto answer = Ask(protocolClass, command, parameter);
  if (!answer || IsError(*answer)) return answer ? std::optional(std::string()) : std::nullopt;
  QString text = QString::fromStdString(*answer);
  text.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return text.toStdString();
}

/// The parameter of the reply, `OK` and errors included. The connection must be usable; nothing
/// when it is not any more.
std::optional<std::string> PjLinkChannel::Ask(char protocolClass, std::string_view command,
                                              std::string_view parameter) {
  const PjLink::Line request{protocolClass, std::string(command), ' ', std::string(parameter)};
  const std::string bytes = std::exchange(proof_, {}) + PjLink::Format(request) + '\r';
  socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  const auto text = ReadLine(command == "INST" ? PjLink::kLongestInputs : PjLink::kLongestLine,
                             QDeadlineTimer(limits_.answer));
  if (!text) return std::nullopt;
  const auto reply = PjLink::Parse(*text);
  if (reply && reply->separator == '=' && reply->protocolClass == protocolClass &&
      PjLink::SameWord(reply->command, command)) {
    return reply->parameter;
  }
  Drop(PjLink::SameWord(*text, PjLink::kWrongPassword) ? ConnectionState::PasswordRequired
                                                       : ConnectionState::NotUnderstood);
  return std::nullopt;
}
