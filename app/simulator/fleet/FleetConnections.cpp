#include "app/simulator/fleet/FleetConnections.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

#include "app/simulator/fleet/FleetSockets.h"

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t kMostPjLinkConnections = 4;
constexpr std::uint32_t kMostWireConnections = 8;
constexpr std::size_t kMostUnsent = 65536;
constexpr auto kAbandonedCheck = 1s;

}  // namespace

FleetConnections::FleetConnections(FleetProjectors& projectors, FleetEvents& events,
                                   FleetTimer& timer, FleetNotices& notices, std::string password)
    : projectors_(projectors),
      events_(events),
      timer_(timer),
      notices_(notices),
      password_(std::move(password)) {
  QObject::connect(&abandonedCheck_, &QTimer::timeout, &abandonedCheck_,
                   [this] { EndAbandoned(); });
  abandonedCheck_.start(kAbandonedCheck);
}

FleetConnections::~FleetConnections() {
  for (std::size_t socket = 0; socket < connections_.size(); ++socket) {
    if (connections_[socket]) close(static_cast<int>(socket));
  }
}

void FleetConnections::Add(int socket, FleetProtocol protocol) {
  const auto projector = projectors_.Find(FleetSockets::LocalEndpoint(socket).address);
  const auto most =
      protocol == FleetProtocol::PjLink ? kMostPjLinkConnections : kMostWireConnections;
  if (!projector || projectors_.At(*projector).counts.open >= most ||
      !events_.Watch(socket, EPOLLIN)) {
    return FleetSockets::Reset(socket);
  }
  const auto place = static_cast<std::size_t>(socket);
  if (place >= connections_.size()) {
    connections_.resize(place + 1);
    generations_.resize(place + 1);
  }
  ++generations_[place];
  connections_[place] =
      std::make_unique<FleetConnection>(projectors_, *projector, protocol, password_);
  const std::string greeting = connections_[place]->Greeting();
  if (projectors_.At(*projector).fault.line.kind == LineFault::Kind::Cut) {
    Send(socket, greeting);  // only replies are cut
  } else {
    Reply(socket, greeting);
  }
}

void FleetConnections::Handle(int socket, std::uint32_t events) {
  if ((events & EPOLLOUT) != 0) SendRest(socket);
  if ((events & ~static_cast<std::uint32_t>(EPOLLOUT)) != 0) Read(socket);
}

void FleetConnections::Disconnect(std::size_t projector) {
  for (std::size_t socket = 0; socket < connections_.size(); ++socket) {
    if (!connections_[socket] || connections_[socket]->Projector() != projector) continue;
    connections_[socket].reset();
    FleetSockets::Reset(static_cast<int>(socket));
  }
}

FleetConnection* FleetConnections::At(int socket) {
  const auto place = static_cast<std::size_t>(socket);
  return place < connections_.size() ? connections_[place].get() : nullptr;
}

void FleetConnections::Read(int socket) {
  FleetConnection* const connection = At(socket);
  if (!connection) return;  // an earlier event ended the connection
  std::array<char, 4096> piece{};
  const ssize_t size = recv(socket, piece.data(), piece.size(), 0);
  if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (size <= 0) return End(socket);
  const std::size_t projector = connection->Projector();
  const auto changes = projectors_.At(projector).counts.changes;
  for (const std::string& reply :
       connection->Receive({piece.data(), static_cast<std::size_t>(size)})) {
    Reply(socket, reply);
    if (At(socket) != connection) break;
  }
  if (At(socket) == connection && connection->IsOver()) {  // after replies that are delayed
    RunAt(socket, connection->repliesUntil, [this, socket] { EndIfSent(socket); });
  }
  if (projectors_.At(projector).counts.changes != changes) notices_.SendChanges(projector);
}

void FleetConnections::Reply(int socket, std::string_view reply) {
  FleetConnection* const connection = At(socket);
  const LineFault& fault = projectors_.At(connection->Projector()).fault.line;
  const auto now = Clock::now();
  switch (fault.kind) {
    case LineFault::Kind::None:
      return Send(socket, reply);
    case LineFault::Kind::Silent:
      return;
    case LineFault::Kind::Late:
      return SendAt(socket, now + std::chrono::milliseconds(fault.amount), std::string(reply));
    case LineFault::Kind::Cut:
      Send(socket, reply.substr(0, static_cast<std::size_t>(fault.amount)));
      return End(socket);
    case LineFault::Kind::Garbage:
      return Send(socket, std::string(reply.size(), '?'));
    case LineFault::Kind::Trickle: {
      auto due = std::max(connection->repliesUntil, now);
      for (const char byte : reply) SendAt(socket, due += 1ms, std::string(1, byte));
    }
  }
}

void FleetConnections::Send(int socket, std::string_view bytes) {
  FleetConnection* const connection = At(socket);
  if (!connection || bytes.empty()) return;
  if (connection->unsent.empty()) {
    const ssize_t sent = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent > 0) bytes.remove_prefix(static_cast<std::size_t>(sent));
    if (bytes.empty()) return;
    events_.Watch(socket, EPOLLIN | EPOLLOUT);
  }
  connection->unsent += bytes;
  if (connection->unsent.size() > kMostUnsent) End(socket);
}

void FleetConnections::SendRest(int socket) {
  FleetConnection* const connection = At(socket);
  if (!connection) return;
  std::string& unsent = connection->unsent;
  const ssize_t sent = send(socket, unsent.data(), unsent.size(), MSG_NOSIGNAL);
  if (sent < 0 && errno != EAGAIN) return End(socket);
  if (sent > 0) unsent.erase(0, static_cast<std::size_t>(sent));
  if (!unsent.empty()) return;
  if (connection->IsOver()) return End(socket);
  events_.Watch(socket, EPOLLIN);
}

void FleetConnections::SendAt(int socket, Clock::time_point due, std::string bytes) {
  Clock::time_point& until = At(socket)->repliesUntil;
  until = std::max(until, due);
  RunAt(socket, due, [this, socket, bytes = std::move(bytes)] { Send(socket, bytes); });
}

void FleetConnections::RunAt(int socket, Clock::time_point due, FleetTimer::Action action) {
  const std::uint32_t generation = generations_[static_cast<std::size_t>(socket)];
  timer_.RunAt(due, [this, socket, generation, action = std::move(action)] {
    if (At(socket) && generations_[static_cast<std::size_t>(socket)] == generation) action();
  });
}

void FleetConnections::End(int socket) {
  if (!At(socket)) return;
  connections_[static_cast<std::size_t>(socket)].reset();
  close(socket);
}

void FleetConnections::EndIfSent(int socket) {
  const FleetConnection* const connection = At(socket);
  if (connection && connection->unsent.empty()) End(socket);
}

void FleetConnections::EndAbandoned() {
  const auto now = Clock::now();
  for (std::size_t socket = 0; socket < connections_.size(); ++socket) {
    if (connections_[socket] && connections_[socket]->IsAbandoned(now)) {
      End(static_cast<int>(socket));
    }
  }
}
