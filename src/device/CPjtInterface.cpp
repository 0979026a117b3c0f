#include "device/CPjtInterface.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "device/Connect.h"
#include "device/DropException.h"
#include "device/ModelData.h"

namespace {

constexpr int kNetworkKind = 1;

using Op = PjtOperation;

std::int16_t Word(int value) { return static_cast<std::int16_t>(value); }

std::string BoundedText(const char* text) {
  return text ? std::string(text, strnlen(text, NameSlot{}.size())) : std::string();
}

int KeepList(int count, const int* values, std::vector<std::int32_t>& kept) {
  const int size = values ? std::clamp(count, 0, CountedList::kCapacity) : 0;
  kept.assign(values, values + size);
  return size;
}

// The dialog's handlers do not handle exceptions, but a host's channel may throw.
void Guarded(const auto& act) {
  try {
    act();
  } catch (...) {
    DropException();
  }
}

}  // namespace

struct CPjtInterface::Traffic {
  /// The channel of each waiting command, the innermost last; the object may have another by now.
  std::vector<std::shared_ptr<ProjectorChannel>> waiting;
  int abandoned = 0;
  Tally sent;
};

CPjtInterface::OwnTraffic::OwnTraffic() : now(std::make_shared<Traffic>()) {}

CPjtInterface::CPjtInterface() = default;
CPjtInterface::~CPjtInterface() = default;

void CPjtInterface::SetChannel(std::shared_ptr<ProjectorChannel> channel) {
  channel_ = std::move(channel);
  isHosts_ = channel_ != nullptr;
}

ConnectionState CPjtInterface::Connection() const {
  ConnectionState state = ConnectionState::None;
  if (channel_) Guarded([&] { state = channel_->Connection(); });
  return state;
}

std::optional<SourceList> CPjtInterface::Inputs() const {
  std::optional<SourceList> inputs;
  if (channel_ && !cutOff_) Guarded([&] { inputs = channel_->Inputs(); });
  return inputs;
}

std::optional<PowerState> CPjtInterface::Power() const {
  std::optional<PowerState> power;
  if (channel_ && !cutOff_) Guarded([&] { power = channel_->Power(); });
  return power;
}

void CPjtInterface::CopyData(int kind, int number, int parameter, const char* text1,
                             const char* text2) {
  connectionKind_ = kind;
  connectionNumber_ = number;
  connectionParameter_ = parameter;
  connectionText1_ = BoundedText(text1);
  connectionText2_ = BoundedText(text2);
  serial_ = {};
  network_ = {};
  if (kind == kNetworkKind) {
    network_.Address = connectionText1_;
    network_.Secret = connectionText2_;
    network_.Port = parameter;
  } else {
    serial_.Port = number;
    serial_.BaudRate = parameter;
  }
  if (isHosts_) return;
  channel_ =
      MakeChannel(ParseConnection({kind, number, parameter, connectionText1_, connectionText2_}));
}

int CPjtInterface::CopyAspectData(int count, const int* values) {
  return KeepList(count, values, aspectValues_);
}

int CPjtInterface::CopyGammaData(int count, const int* values) {
  return KeepList(count, values, gammaValues_);
}

PjtReply CPjtInterface::Execute(const PjtCommand& command) const {
  // Held for the whole call, because code that runs while the channel waits may set another channel
  // or destroy this object.
  const std::shared_ptr<ProjectorChannel> channel = channel_;
  const std::shared_ptr<Traffic> traffic = traffic_.now;
  PjtReply reply{.result = RefusedResult(command.operation), .answered = false, .unsent = true};
  if (channel && !cutOff_ && traffic->abandoned == 0) {
    reply.unsent = false;
    traffic->waiting.push_back(channel);
    Guarded([&] { reply = channel->Execute(command); });
    traffic->waiting.pop_back();
  }
  ++traffic->sent.commands;
  traffic->sent.unanswered += !reply.answered && traffic->abandoned == 0;
  traffic->sent.refused += reply.answered && reply.result == RefusedResult(command.operation);
  traffic->sent.notOffered += !reply.offered;
  traffic->sent.busy += reply.busy;
  traffic->sent.pending += reply.pending;
  traffic->sent.uncertain += !reply.answered && !reply.unsent && !IsRead(command.operation);
  return reply;
}

std::shared_ptr<const void> CPjtInterface::Abandon() {
  const std::shared_ptr<Traffic> traffic = traffic_.now;
  ++traffic->abandoned;
  const auto waiting = traffic->waiting;  // a channel of the host may run anything
  for (const auto& channel : waiting) Guarded([&] { channel->Abandon(); });
  return {traffic.get(), [traffic](const void*) { --traffic->abandoned; }};
}

bool CPjtInterface::IsAbandoned() const { return traffic_.now->abandoned > 0; }
bool CPjtInterface::IsWaiting() const { return !traffic_.now->waiting.empty(); }
CPjtInterface::Tally CPjtInterface::Sent() const { return traffic_.now->sent; }

void CPjtInterface::AllowRetry() {
  if (channel_) Guarded([this] { channel_->Abandon(); });
}

void CPjtInterface::Announce(std::span<const PjtCommand> reads) const {
  if (channel_ && !cutOff_ && !IsAbandoned()) Guarded([&] { channel_->Announce(reads); });
}

int CPjtInterface::ExecuteInto(const PjtCommand& command, short* value) const {
  if (!value) return RefusedResult(command.operation);
  const PjtReply reply = Execute(command);
  if (IsSuccess(command.operation, reply.result)) *value = reply.value;
  return reply.result;
}

short CPjtInterface::ExecuteFor(const PjtCommand& command, short otherwise) const {
  const PjtReply reply = Execute(command);
  return IsSuccess(command.operation, reply.result) ? reply.value : otherwise;
}

// One definition per family. The list of operations defines which members exist.

#define PJT_FORM_Action(name) \
  int CPjtInterface::name() { return Execute({Op::name}).result; }
#define PJT_FORM_CheckedReset(name) PJT_FORM_Action(name)
#define PJT_FORM_PointReset(name) \
  int CPjtInterface::name(int point) { return Execute({Op::name, 0, Word(point)}).result; }
#define PJT_FORM_SilentAction(name) \
  void CPjtInterface::name() { Execute({Op::name}); }
#define PJT_FORM_PointerGetter(name) \
  int CPjtInterface::name(short* value) { return ExecuteInto({Op::name}, value); }
#define PJT_FORM_IntSetter(name) \
  int CPjtInterface::name(int value) { return Execute({Op::name, 0, Word(value)}).result; }
#define PJT_FORM_ShortSetter(name) \
  int CPjtInterface::name(short value) { return Execute({Op::name, 0, value}).result; }
#define PJT_FORM_FlaggedSetter(name)                         \
  int CPjtInterface::name(short value, int flag) {           \
    return Execute({Op::name, 0, value, Word(flag)}).result; \
  }
#define PJT_FORM_SilentSetter(name) \
  void CPjtInterface::name(int value) { Execute({Op::name, 0, Word(value)}); }
#define PJT_FORM_SilentFlaggedSetter(name) \
  void CPjtInterface::name(int value, int flag) { Execute({Op::name, 0, Word(value), Word(flag)}); }
#define PJT_FORM_PointerStepper(name)                                    \
  int CPjtInterface::name(short* value) {                                \
    return ExecuteInto({Op::name, 0, value ? *value : short{0}}, value); \
  }
#define PJT_FORM_SourceGetter(name)                         \
  int CPjtInterface::name(int source, short* value) {       \
    return ExecuteInto({Op::name, 0, Word(source)}, value); \
  }
#define PJT_FORM_SourceStepper(name) PJT_FORM_SourceGetter(name)
#define PJT_FORM_SourceSetter(name)                            \
  int CPjtInterface::name(int source, short value) {           \
    return Execute({Op::name, 0, Word(source), value}).result; \
  }
#define PJT_FORM_ShortSourceSetter(name)                 \
  int CPjtInterface::name(short source, short value) {   \
    return Execute({Op::name, 0, source, value}).result; \
  }
#define PJT_FORM_DirectGetter(name) \
  short CPjtInterface::name() { return ExecuteFor({Op::name}, 0); }
#define PJT_FORM_PointGetter(name) \
  short CPjtInterface::name(int point) { return ExecuteFor({Op::name, 0, Word(point)}, 0); }
#define PJT_FORM_ChannelStepper(name)                              \
  short CPjtInterface::name(int channel, short value) {            \
    return ExecuteFor({Op::name, 0, Word(channel), value}, value); \
  }
#define PJT_FORM_GenericGetter(name)
#define PJT_FORM_GenericSetter(name)
#define PJT_FORM_GenericStepper(name)
#define PJT_OPERATION(name, family, number) PJT_FORM_##family(name)
#include "device/PjtOperations.def"

short CPjtInterface::IncrementAutoPowerOff(short value) {
  return ExecuteFor({Op::IncrementAutoPowerOff, 0, value}, value);
}

short CPjtInterface::DecrementAutoPowerOff(short value) {
  return ExecuteFor({Op::DecrementAutoPowerOff, 0, value}, value);
}

int CPjtInterface::Get(unsigned short code, unsigned short argument, CPjtInterface*,
                       unsigned short* value) {
  if (!value) return RefusedResult(Op::Get);
  const PjtReply reply = Execute({Op::Get, code, Word(argument)});
  if (reply.result != 0) *value = static_cast<unsigned short>(reply.value);
  return reply.result;
}

int CPjtInterface::Set(unsigned short code, unsigned short value, CPjtInterface*) {
  return Execute({Op::Set, code, Word(value)}).result;
}

int CPjtInterface::Inc(unsigned short code, unsigned short argument, CPjtInterface*) {
  return Execute({Op::Inc, code, Word(argument)}).result;
}

int CPjtInterface::Dec(unsigned short code, unsigned short argument, CPjtInterface*) {
  return Execute({Op::Dec, code, Word(argument)}).result;
}
