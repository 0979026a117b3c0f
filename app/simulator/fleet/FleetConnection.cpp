#include "app/simulator/fleet/FleetConnection.h"

#include <utility>

#include "device/CommandCode.h"
#include "device/channels/ForwardingChannel.h"
#include "device/protocol/PjLinkLine.h"
#include "simulator/PjLinkProjectorSession.h"
#include "simulator/WireResponder.h"

namespace {

constexpr std::chrono::seconds kPjLinkIdle{30};
constexpr std::chrono::seconds kTimeForHello{10};

}  // namespace

/// Counts the commands that arrive over the wire.
class FleetConnection::CountingChannel final : public ForwardingChannel {
 public:
  CountingChannel(std::shared_ptr<ProjectorChannel> inner, RequestCounts& counts)
      : ForwardingChannel(std::move(inner)), counts_(counts) {}

  PjtReply Execute(const PjtCommand& command) override {
    const bool isPoll =
        command.operation == PjtOperation::Get && command.code == CommandCode::RunningState;
    counts_.CountRequest(isPoll, !IsRead(command.operation));
    return Inner().Execute(command);
  }

 private:
  RequestCounts& counts_;
};

struct FleetConnection::PjLinkEnd {
  PjLinkEnd(std::shared_ptr<ProjectorChannel> projector, ServedProjector served,
            const std::string& password)
      : responder(std::move(projector), std::move(served)), session(responder, password) {}

  PjLinkResponder responder;
  PjLinkProjectorSession session;
};

struct FleetConnection::WireEnd {
  WireEnd(std::shared_ptr<ProjectorChannel> projector, RequestCounts& counts)
      : channel(std::move(projector), counts) {}

  CountingChannel channel;
  WireResponder responder{channel};
};

FleetConnection::FleetConnection(FleetProjectors& projectors, std::size_t projector,
                                 FleetProtocol protocol, const std::string& password)
    : projectors_(projectors), projector_(projector), protocol_(protocol) {
  FleetProjector& served = projectors_.At(projector);
  served.counts.CountConnection();
  if (protocol == FleetProtocol::PjLink) {
    pjLink_ = std::make_unique<PjLinkEnd>(projectors_.ChannelOf(projector),
                                          projectors.Served(projector), password);
  } else {
    wire_ = std::make_unique<WireEnd>(projectors_.ChannelOf(projector), served.counts);
  }
}

FleetConnection::~FleetConnection() { --projectors_.At(projector_).counts.open; }

std::string FleetConnection::Greeting() const {
  return pjLink_ ? pjLink_->session.Greeting() : std::string();
}

std::vector<std::string> FleetConnection::Receive(std::string_view bytes) {
  lastHeard_ = Clock::now();
  std::vector<std::string> replies;
  if (wire_) {
    if (std::string reply = wire_->responder.Receive(bytes); !reply.empty()) {
      replies.push_back(std::move(reply));
    }
    return replies;
  }
  FleetProjector& served = projectors_.At(projector_);
  pjLink_->responder.SetErrors(served.errors);
  pjLink_->session.Add(bytes);
  while (auto exchange = pjLink_->session.Next()) {
    const auto line = PjLink::Parse(exchange->request);
    const bool isQuestion = line && line->parameter.starts_with(PjLink::kQuery);
    served.counts.CountRequest(isQuestion && PjLink::SameWord(line->command, "POWR"),
                               line && !isQuestion);
    if (!exchange->reply.empty()) replies.push_back(std::move(exchange->reply));
  }
  return replies;
}

bool FleetConnection::IsOver() const { return pjLink_ && pjLink_->session.IsOver(); }

bool FleetConnection::IsAbandoned(Clock::time_point now) const {
  if (pjLink_) return now - lastHeard_ > kPjLinkIdle;
  return !wire_->responder.IsGreeted() && now - lastHeard_ > kTimeForHello;
}
