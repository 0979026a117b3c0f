#include "simulator/PjLinkResponder.h"

#include <algorithm>
#include <utility>

#include "device/CommandCode.h"
#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr int kStandby = 0;
constexpr int kOn = 1;
constexpr int kCooling = 2;
constexpr int kWarming = 3;
constexpr std::size_t kMostInputs = 50;

std::string Error(std::string_view error) { return std::string(error); }

std::size_t LongestText(std::string_view name) {
  if (name == "NAME") return 64;
  return name.starts_with("INF") ? 32 : 128;
}

/// The text without line breaks, cut to at most `longest` bytes.
std::string Bounded(std::string text, std::size_t longest) {
  std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
  return std::string(CutText(text, longest));
}

/// `text` has only letters and digits.
std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

}  // namespace

std::vector<ServedInput> InputsOf(const SourceList& sources) {
  constexpr std::size_t kNumbers = 9;
  std::vector<ServedInput> inputs;
  for (std::size_t i = 0; i < static_cast<std::size_t>(sources.Size()); ++i) {
    const char kind = i < kNumbers ? '3' : '5';
    inputs.push_back({.code = {kind, static_cast<char>('1' + i % kNumbers)},
                      .source = static_cast<std::int16_t>(sources.firstValues[i]),
                      .name = std::string(NameText(sources.names[i]))});
  }
  return inputs;
}

struct PjLinkResponder::Command {
  std::string_view name;
  std::string_view classes;  ///< The protocol classes that have it.
  bool onlyOn;               ///< Not available in standby.
  std::string (PjLinkResponder::*query)();
  std::string (PjLinkResponder::*set)(std::string_view) = nullptr;
};

using R = PjLinkResponder;

const PjLinkResponder::Command PjLinkResponder::kCommands[] = {
    {"POWR", "1", false, &R::Power, &R::SetPower},
    {"INPT", "12", true, &R::Input, &R::SetInput},
    {"AVMT", "1", true, &R::Muted, &R::SetMuted},
    {"ERST", "1", false, &R::Errors},
    {"LAMP", "1", false, &R::Lamp},
    {"INST", "12", false, &R::Inputs},
    {"CLSS", "1", false, &R::ProtocolClass},
    {"FREZ", "2", true, &R::Frozen, &R::SetFrozen},
    {"SVOL", "2", true, nullptr, &R::StepVolume},
    {"FILT", "2", false, &R::Filter},
};

PjLinkResponder::PjLinkResponder(std::shared_ptr<ProjectorChannel> projector,
                                 ServedProjector served)
    : projector_(std::move(projector)), served_(std::move(served)) {}

PjLinkResponder::~PjLinkResponder() = default;

std::optional<std::string> PjLinkResponder::Answer(std::string_view text) {
  auto line = PjLink::Parse(text);
  if (!line || line->separator != ' ') return std::nullopt;
  line->separator = '=';
  line->parameter = Perform(line->protocolClass, Upper(line->command), line->parameter);
  return PjLink::Format(*line);
}

std::string PjLinkResponder::Perform(char protocolClass, std::string_view name,
                                     std::string_view parameter) {
  if (protocolClass < '1' || protocolClass > '0' + served_.protocolClass) {
    return Error(PjLink::kUndefined);
  }
  const bool isQuery = parameter == PjLink::kQuery;
  if (name == "INNM" && protocolClass == '2') {
    return parameter.starts_with(PjLink::kQuery) ? InputName(parameter.substr(1))
                                                 : Error(PjLink::kOutOfRange);
  }
  if (const auto text = Text(protocolClass, name)) {
    return isQuery ? *text : Error(PjLink::kOutOfRange);
  }
  const auto* const command = std::ranges::find(kCommands, name, &Command::name);
  if (command == std::end(kCommands) ||
      command->classes.find(protocolClass) == std::string_view::npos) {
    return Error(PjLink::kUndefined);
  }
  if (isQuery ? !command->query : !command->set) return Error(PjLink::kOutOfRange);
  if (command->onlyOn && !IsOn()) return Error(PjLink::kNotNow);
  return isQuery ? (this->*command->query)() : (this->*command->set)(parameter);
}

std::optional<std::string> PjLinkResponder::Text(char protocolClass, std::string_view name) const {
  const char own = name == "NAME" || name.starts_with("INF") ? '1' : '2';
  const auto found = served_.texts.find(name);
  if (own != protocolClass || found == served_.texts.end()) return std::nullopt;
  return Bounded(found->second, LongestText(name));
}

template <typename Format>
std::string PjLinkResponder::Report(std::uint16_t code, Format format) {
  const PjtReply reply = projector_->Execute({Op::Get, code});
  if (!reply.answered) return Error(PjLink::kFailure);
  if (!IsSuccess(Op::Get, reply.result)) return Error(PjLink::kUndefined);
  return format(static_cast<std::uint16_t>(reply.value));
}

std::string PjLinkResponder::Change(const PjtCommand& command) {
  const PjtReply reply = projector_->Execute(command);
  if (!reply.answered) return Error(PjLink::kFailure);
  return std::string(IsSuccess(command.operation, reply.result) ? PjLink::kDone : PjLink::kNotNow);
}

bool PjLinkResponder::IsOn() { return Power() == std::to_string(kOn); }

std::string PjLinkResponder::Power() {
  return Report(CommandCode::RunningState, [this](int status) {
    const bool isWarming = projector_->Power() == PowerState::WarmingUp;
    return std::to_string(status == kOn && isWarming ? kWarming : status);
  });
}

std::string PjLinkResponder::SetPower(std::string_view parameter) {
  const auto on = PjLink::Switch(parameter);
  if (!on) return Error(PjLink::kOutOfRange);
  if (Power() == std::to_string(kCooling)) return Error(PjLink::kNotNow);
  return Change({*on == kStandby ? Op::SetPowerOff : Op::SetPowerOn});
}

std::string PjLinkResponder::Input() {
  return Report(CommandCode::InputSource, [this](int source) {
    const auto found = std::ranges::find(served_.inputs, source, &ServedInput::source);
    return found == served_.inputs.end() ? Error(PjLink::kNotNow) : found->code;
  });
}

std::string PjLinkResponder::SetInput(std::string_view code) {
  const auto found = std::ranges::find(served_.inputs, code, &ServedInput::code);
  if (found == served_.inputs.end()) return Error(PjLink::kOutOfRange);
  return Change({Op::Set, CommandCode::InputSource, found->source});
}

std::string PjLinkResponder::Muted() {
  return Report(CommandCode::BlankState, [this](int blank) {
    return Report(CommandCode::Mute, [blank](int mute) -> std::string {
      if (blank == 0) return mute == 0 ? "30" : "21";
      return mute == 0 ? "11" : "31";
    });
  });
}

std::string PjLinkResponder::SetMuted(std::string_view parameter) {
  const std::string_view part = parameter.substr(0, 1);
  const auto on = PjLink::Switch(parameter.substr(part.size()));
  if (!on || (part != "1" && part != "2" && part != "3")) return Error(PjLink::kOutOfRange);
  const auto value = static_cast<std::int16_t>(*on);
  if (part != "2") {
    std::string answer = Change({Op::SetBlank, 0, value});
    if (part == "1" || answer != PjLink::kDone) return answer;
  }
  return Change({Op::SetMute, 0, value});
}

std::string PjLinkResponder::Errors() {
  return Report(CommandCode::ErrorStatus, [this](int status) {
    return served_.errors.empty() ? PjLink::ErrorDigits(status) : served_.errors;
  });
}

std::string PjLinkResponder::Lamp() {
  return Report(CommandCode::LampTime, [this](int first) {
    const std::string burns = IsOn() ? " 1" : " 0";
    std::string lamps = std::to_string(first) + burns;
    for (const int hours : served_.moreLampHours) lamps += ' ' + std::to_string(hours) + burns;
    return lamps;
  });
}

std::string PjLinkResponder::Inputs() {
  std::string list;
  for (std::size_t i = 0; i < std::min(served_.inputs.size(), kMostInputs); ++i) {
    if (i > 0) list += ' ';
    list += served_.inputs[i].code;
  }
  return list;
}

std::string PjLinkResponder::ProtocolClass() { return std::to_string(served_.protocolClass); }

std::string PjLinkResponder::Frozen() {
  return Report(CommandCode::Freeze, [](int frozen) { return frozen == 0 ? "0" : "1"; });
}

std::string PjLinkResponder::SetFrozen(std::string_view parameter) {
  const auto on = PjLink::Switch(parameter);
  if (!on) return Error(PjLink::kOutOfRange);
  return Change({Op::SetFreeze, 0, static_cast<std::int16_t>(*on)});
}

std::string PjLinkResponder::StepVolume(std::string_view parameter) {
  const auto up = PjLink::Switch(parameter);
  if (!up) return Error(PjLink::kOutOfRange);
  return Change({*up == 1 ? Op::Inc : Op::Dec, CommandCode::Volume});
}

std::string PjLinkResponder::Filter() {
  return Report(CommandCode::FilterTime, [](int hours) { return std::to_string(hours); });
}

std::string PjLinkResponder::InputName(std::string_view code) const {
  const auto found = std::ranges::find(served_.inputs, code, &ServedInput::code);
  return found == served_.inputs.end() ? Error(PjLink::kOutOfRange)
                                       : Bounded(found->name, LongestText("INNM"));
}

}  // namespace AdvancedControl
