#include "device/Connect.h"

#include <charconv>
#include <optional>

#include "device/HostAddress.h"
#include "device/channels/PjLinkChannel.h"
#include "device/channels/SerialChannel.h"
#include "device/channels/TcpChannel.h"

namespace AdvancedControl {

namespace {

constexpr int kNetworkKind = 1;
constexpr int kMaximumPort = 65535;
constexpr int kSerialPorts = 256;
constexpr int kMaximumBaud = 4'000'000;

constexpr std::string_view kTcp = "tcp://";
constexpr std::string_view kPjLink = "pjlink://";
constexpr std::string_view kSerial = "serial://";

bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::optional<int> Number(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

AddressError Wrong(std::string_view what, std::string_view text) {
  return {std::string(what) + " '" + std::string(text) + "'"};
}

// `port` is 0 if it is not given separately.
ProjectorAddress ParseNetwork(std::string_view text, int port, std::string_view password) {
  const std::string_view whole = text;
  const bool tcp = TakePrefix(text, kTcp);
  const bool pjLink = !tcp && TakePrefix(text, kPjLink);

  std::string_view host = text;
  std::string_view portText;
  if (text.starts_with('[')) {
    const auto close = text.find(']');
    if (close == std::string_view::npos) return Wrong("no address", whole);
    host = text.substr(1, close - 1);
    portText = text.substr(close + 1);
  } else if (const auto colon = text.find(':');
             colon != std::string_view::npos && colon == text.rfind(':')) {
    host = text.substr(0, colon);
    portText = text.substr(colon);
  }
  if (!IsHostAddress(host)) return Wrong("no address", whole);
  if (!portText.empty()) {
    const auto own = portText.starts_with(':') ? Number(portText.substr(1)) : std::nullopt;
    if (!own || *own < 1 || (port != 0 && port != *own)) return Wrong("wrong port in", whole);
    port = *own;
  }
  if (port < 0 || port > kMaximumPort) return Wrong("no network port", std::to_string(port));

  const auto known = static_cast<std::uint16_t>(port);
  if (pjLink || (!tcp && (port == 0 || port == PjLinkAddress::kDefaultPort))) {
    return PjLinkAddress{.host = std::string(host),
                         .port = port == 0 ? PjLinkAddress::kDefaultPort : known,
                         .password = std::string(password)};
  }
  return TcpAddress{.host = std::string(host), .port = port == 0 ? Wire::kDefaultPort : known};
}

ProjectorAddress MakeSerial(std::string_view device, int baud) {
  if (baud < 0 || baud > kMaximumBaud) return Wrong("no line speed", std::to_string(baud));
  return SerialAddress{.device = std::string(device),
                       .baud = baud == 0 ? SerialAddress::kDefaultBaud : baud};
}

/// The channel for invalid connection parameters.
class NoProjector final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override {
    return {.result = RefusedResult(command.operation), .answered = false, .unsent = true};
  }
  ConnectionState Connection() const override { return ConnectionState::WrongParameters; }
};

struct ChannelMaker {
  using Channel = std::shared_ptr<ProjectorChannel>;

  Channel operator()(const AddressError&) const { return std::make_shared<NoProjector>(); }
  Channel operator()(const TcpAddress& tcp) const {
    return std::make_shared<TcpChannel>(tcp.host, tcp.port, wire);
  }
  Channel operator()(const PjLinkAddress& own) const {
    return std::make_shared<PjLinkChannel>(own.host, own.port, own.password, pjLink);
  }
  Channel operator()(const SerialAddress& serial) const {
    return std::make_shared<SerialChannel>(serial.device, serial.baud, wire);
  }

  WireChannel::Limits wire{};
  PjLinkChannel::Limits pjLink{};
};

}  // namespace

ProjectorAddress ParseConnection(const ConnectionData& data) {
  if (data.Kind == kNetworkKind) return ParseNetwork(data.Text1, data.Parameter, data.Text2);
  if (data.Text1.starts_with('/')) return MakeSerial(data.Text1, data.Parameter);
  if (data.Number < 0 || data.Number >= kSerialPorts) {
    return Wrong("no serial port", std::to_string(std::int64_t{data.Number} + 1));
  }
  return MakeSerial(SerialDevice(data.Number), data.Parameter);
}

ProjectorAddress ParseAddress(std::string_view text, std::string_view password) {
  const std::string_view whole = text;
  if (!TakePrefix(text, kSerial) && !text.starts_with('/')) return ParseNetwork(text, 0, password);
  if (!text.starts_with('/')) return Wrong("no serial port", whole);
  const auto mark = text.find('?');
  if (mark == std::string_view::npos) return MakeSerial(text, 0);
  const auto baud = Number(text.substr(mark + 1));
  if (!baud || *baud < 1) return Wrong("no line speed", text.substr(mark + 1));
  return MakeSerial(text.substr(0, mark), *baud);
}

std::shared_ptr<ProjectorChannel> MakeUnboundedChannel(
    const ProjectorAddress& address, std::optional<std::chrono::milliseconds> timeOut) {
  ChannelMaker maker;
  if (timeOut) {
    maker.wire = {.connect = *timeOut, .answer = *timeOut};
    maker.pjLink = {.connect = *timeOut, .answer = *timeOut};
  }
  return std::visit(maker, address);
}

std::shared_ptr<ProjectorChannel> MakeChannel(const ProjectorAddress& address) {
  auto channel = MakeUnboundedChannel(address);
  if (std::holds_alternative<AddressError>(address)) return channel;
  return std::make_shared<BoundedChannel>(std::move(channel), BoundsFor(address));
}

BoundedChannel::Limits BoundsFor(const ProjectorAddress& address) {
  if (!std::holds_alternative<PjLinkAddress>(address)) return {};
  return {.timeOut = PjLinkChannel::Limits().Longest()};
}

}  // namespace AdvancedControl
