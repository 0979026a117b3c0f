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
constexpr qsizetype kMostUnasked = 4 * kReadBuffer;
constexpr std::size_t kMostInputs = SourceList::kCapacity;

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

bool PjLinkChannel::Has(const PjtCommand& command) { return Find(command) != nullptr; }

PjtReply PjLinkChannel::Execute(const PjtCommand& command) {
  answerTime_ = std::min(limits_.answer, longest_);
  const PjtReply reply = CarryOut(command);
  answerTime_ = limits_.answer;
  return reply;
}

PjtReply PjLinkChannel::CarryOut(const PjtCommand& command) {
  const int refused = RefusedResult(command.operation);
  const PjtReply notOffered{.result = refused, .offered = false};
  const PjtReply unanswered{.result = refused, .answered = false};
  const Mapping* const mapping = Find(command);
  if (!mapping) return notOffered;
  const Parameter parameter = mapping->parameter(command.first);
  if (!parameter) return {.result = refused};

  char protocolClass = '1';
  if (mapping->protocolClass != Class::First) {
    const auto known = ProjectorClass();
    if (!known) return unanswered;
    if (mapping->protocolClass == Class::Second && *known == '1') return notOffered;
    protocolClass = *known;
  }
  const Parameter answer = Ask(protocolClass, mapping->command, *parameter);
  if (!answer) return unanswered;
  if (PjLink::SameWord(*answer, PjLink::kUndefined)) return notOffered;
  const std::optional<int> value = mapping->value ? mapping->value(*answer)
                                   : PjLink::SameWord(*answer, PjLink::kDone) ? std::optional(0)
                                                                              : std::nullopt;
  if (!value) return {.result = refused};
  if (mapping->value == PjLink::InputNumber) playing_ = *value;
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
  auto codes = InputCodes();
  if (!codes) return std::nullopt;
  codes_ = std::move(*codes);
  inputs_.clear();
  while (const auto code = NextInput()) {
    if (!AskForInput(*code)) return std::nullopt;
  }
  description.inputs = inputs_;
  description.protocolClass = *ProjectorClass() - '0';
  Drop(ConnectionState::Unused);
  return description;
}

std::optional<SourceList> PjLinkChannel::Inputs() {
  asksForInputs_ = true;
  const std::lock_guard lock(toldMutex_);
  return told_;
}

bool PjLinkChannel::UseIdleTime() {
  const auto code = NextInput();
  const bool isDue = asksForInputs_ && state_ == ConnectionState::Connected &&
                     Clock::now() >= nextTry_ && (codes_.empty() || code);
  if (!isDue) return false;
  if (codes_.empty()) {
    codes_ = InputCodes().value_or(std::vector<std::string>());
    if (!codes_.empty()) return true;
  } else if (AskForInput(*code)) {
    if (NextInput()) return true;
    pause_ = limits_.firstPause;
    const std::lock_guard lock(toldMutex_);
    told_ = SourcesOf(inputs_);
    return false;
  }
  nextTry_ = Clock::now() + pause_;
  pause_ = std::min(2 * pause_, limits_.longestPause);
  state_ = ConnectionState::Connected;  // as far as any command tells
  return false;
}

bool PjLinkChannel::TendConnection(std::chrono::milliseconds unused) {
  if (socket_ && (unused >= limits_.unused || !IsUsable())) Drop(ConnectionState::Unused);
  return socket_ != nullptr;
}

std::optional<std::vector<std::string>> PjLinkChannel::InputCodes() {
  const auto known = ProjectorClass();
  const auto list = known ? AskText(*known, "INST") : std::nullopt;
  return list ? std::optional(PjLink::InputCodes(*list)) : std::nullopt;
}

std::optional<std::string> PjLinkChannel::NextInput() const {
  if (inputs_.size() < std::min(codes_.size(), kMostInputs)) return codes_[inputs_.size()];
  const auto isPlaying = [this](const PjLinkInput& input) { return input.number == playing_; };
  return std::ranges::any_of(inputs_, isPlaying) ? std::nullopt : PjLink::InputCode(playing_);
}

bool PjLinkChannel::AskForInput(const std::string& code) {
  const auto known = ProjectorClass();
  auto name = !known         ? std::nullopt
              : known == '1' ? std::optional(std::string())
                             : AskText(*known, "INNM", std::string(PjLink::kQuery) + code);
  if (!name) return false;
  if (name->empty()) *name = NameByCode(code);
  if (inputs_.size() == kMostInputs) inputs_.pop_back();
  inputs_.push_back({.number = *PjLink::InputNumber(code), .name = std::move(*name)});
  return true;
}

std::optional<char> PjLinkChannel::ProjectorClass() {
  if (class_) return class_;
  const auto answer = Ask('1', "CLSS", PjLink::kQuery);
  if (!answer) return std::nullopt;
  if (*answer == "1" || *answer == "2") class_ = answer->front();
  if (PjLink::SameWord(*answer, PjLink::kUndefined)) class_ = '1';
  return class_.value_or('1');
}

/// Whether the connection stands. What came meanwhile answers nothing that will be asked; where it
/// ends in mid-line, its rest would come later.
bool PjLinkChannel::IsUsable() {
  if (!socket_) return false;
  QByteArray unasked = socket_->readAll();
  while (unasked.size() < kMostUnasked && socket_->waitForReadyRead(0)) {
    unasked += socket_->readAll();
  }
  const bool isWhole = unasked.isEmpty() || unasked.endsWith('\r') || unasked.endsWith('\n');
  return isWhole && unasked.size() < kMostUnasked &&
         socket_->state() == QAbstractSocket::ConnectedState;
}

bool PjLinkChannel::Open() {
  if (host_.empty() || port_ < 1 || port_ > UINT16_MAX) {
    Drop(ConnectionState::WrongParameters);
    return false;
  }
  Drop(ConnectionState::Connecting);
  const QDeadlineTimer deadline(limits_.connect);
  auto problem = ConnectionState::NotReachable;
  socket_ = ConnectSocket(host_, static_cast<std::uint16_t>(port_), kReadBuffer, deadline, problem);
  if (!socket_) {
    class_.reset();  // another projector may come
    Drop(problem);
    return false;
  }
  const auto greeting = ReadLine(PjLink::kLongestLine, deadline);
  if (!greeting) return false;
  const auto seed = PjLink::ParseGreeting(*greeting);
  if (!seed) {
    DropOnLine(*greeting);
    return false;
  }
  proof_ = seed->empty() ? std::string() : PjLink::Digest(*seed, password_);
  if (IsUsable()) return true;
  const bool stands = socket_->state() == QAbstractSocket::ConnectedState;
  Drop(stands ? ConnectionState::NotUnderstood : ConnectionState::Lost);
  return false;
}

void PjLinkChannel::Drop(ConnectionState state) {
  socket_.reset();
  state_ = state;
}

/// On a line that nothing can be done with.
void PjLinkChannel::DropOnLine(std::string_view line) {
  Drop(PjLink::SameWord(line, PjLink::kWrongPassword) ? ConnectionState::PasswordRequired
                                                      : ConnectionState::NotUnderstood);
}

std::optional<std::string> PjLinkChannel::ReadLine(std::size_t bound,
                                                   const QDeadlineTimer& deadline) {
  const auto longest = static_cast<qsizetype>(bound);
  while (true) {
    if (deadline.hasExpired()) {
      Drop(ConnectionState::NoAnswer);
      return std::nullopt;
    }
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

/// As `Ask`, without what is no text; empty where the projector tells an error.
std::optional<std::string> PjLinkChannel::AskText(char protocolClass, std::string_view command,
                                                  std::string_view parameter) {
  const auto answer = Ask(protocolClass, command, parameter);
  if (!answer || IsError(*answer)) return answer ? std::optional(std::string()) : std::nullopt;
  QString text = QString::fromStdString(*answer);
  text.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return text.toStdString();
}

/// The parameter of the reply, `OK` and errors included. A question is asked once more where a
/// connection that was there before turns out to be lost.
std::optional<std::string> PjLinkChannel::Ask(char protocolClass, std::string_view command,
                                              std::string_view parameter) {
  const bool isReused = IsUsable();
  if (!isReused && !Open()) return std::nullopt;
  auto answer = Exchange(protocolClass, command, parameter);
  const bool mayRepeat = isReused && parameter.starts_with(PjLink::kQuery);
  if (answer || !mayRepeat || state_ != ConnectionState::Lost || !Open()) return answer;
  return Exchange(protocolClass, command, parameter);
}

std::optional<std::string> PjLinkChannel::Exchange(char protocolClass, std::string_view command,
                                                   std::string_view parameter) {
  const PjLink::Line request{protocolClass, std::string(command), ' ', std::string(parameter)};
  const std::string bytes = std::exchange(proof_, {}) + PjLink::Format(request) + '\r';
  socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  const QDeadlineTimer deadline(answerTime_);
  const std::size_t bound = command == "INST" ? PjLink::kLongestInputs : PjLink::kLongestLine;
  while (const auto text = ReadLine(bound, deadline)) {
    const auto reply = PjLink::Parse(*text);
    const bool isReply = reply && reply->separator == '=';
    if (isReply && !PjLink::SameWord(reply->command, command)) continue;
    if (isReply && reply->protocolClass == protocolClass) {
      state_ = ConnectionState::Connected;
      return reply->parameter;
    }
    DropOnLine(*text);
    break;
  }
  return std::nullopt;
}
