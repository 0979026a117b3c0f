#include "app/simulator/fleet/FleetServer.h"

#include <cerrno>
#include <chrono>
#include <sys/epoll.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds kPauseWithoutDescriptors{100};

}  // namespace

FleetServer::FleetServer(FleetProjectors& projectors, const Options& options)
    : wirePort_(options.wirePort),
      pjLinkPort_(options.pjLinkPort),
      notices_(projectors, timer_, options.notices),
      connections_(projectors, events_, timer_, notices_, options.password) {}

FleetServer::~FleetServer() {
  for (const int listener : {wireListener_, pjLinkListener_}) {
    if (listener >= 0) close(listener);
  }
}

bool FleetServer::Listen() {
  wireListener_ = FleetSockets::Listen(wirePort_);
  if (wireListener_ < 0) return false;
  pjLinkListener_ = FleetSockets::Listen(pjLinkPort_);
  if (pjLinkListener_ < 0) return false;
  wirePort_ = FleetSockets::LocalEndpoint(wireListener_).port;
  pjLinkPort_ = FleetSockets::LocalEndpoint(pjLinkListener_).port;
  if (!events_.Open() || !notices_.Open(pjLinkPort_)) return false;
  for (const int descriptor : {wireListener_, pjLinkListener_, notices_.Socket()}) {
    if (!events_.Watch(descriptor, EPOLLIN)) return false;
  }
  events_.Start([this](int descriptor, std::uint32_t events) { Handle(descriptor, events); });
  notices_.AnnounceAll();
  return true;
}

void FleetServer::Handle(int descriptor, std::uint32_t events) {
  if (descriptor == wireListener_) {
    AcceptAll(descriptor, FleetProtocol::Wire);
  } else if (descriptor == pjLinkListener_) {
    AcceptAll(descriptor, FleetProtocol::PjLink);
  } else if (descriptor == notices_.Socket()) {
    notices_.AnswerSearches();
  } else {
    connections_.Handle(descriptor, events);
  }
}

void FleetServer::AcceptAll(int listener, FleetProtocol protocol) {
  constexpr int kAtOnce = 128;  // connections accepted before the open ones are served again
  for (int i = 0; i < kAtOnce; ++i) {
    const int socket = FleetSockets::Accept(listener);
    if (socket >= 0) {
      connections_.Add(socket, protocol);
    } else if (errno == EMFILE || errno == ENFILE) {
      events_.Ignore(listener);
      return timer_.RunAt(FleetTimer::Clock::now() + kPauseWithoutDescriptors,
                          [this, listener] { events_.Watch(listener, EPOLLIN); });
    } else if (errno == EAGAIN) {
      return;
    }
  }
}
