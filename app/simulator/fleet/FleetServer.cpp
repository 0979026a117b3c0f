#include "app/simulator/fleet/FleetServer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

#include "simulator/PjLinkResponder.h"

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t kMostPjLinkConnections = 4;
constexpr std::uint32_t kMostWireConnections = 8;
constexpr std::size_t kMostUnsent = 65536;
constexpr auto kPauseWithoutDescriptors = 100ms;
constexpr auto kTidying = 1s;
constexpr auto kSwitchingCheck = 100ms;

}  // namespace

FleetServer::FleetServer(FleetProjectors& projectors, Options options)
    : projectors_(projectors), options_(std::move(options)) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FleetServer::RunDue);
  connect(&tidying_, &QTimer::timeout, this, &FleetServer::EndAbandoned);
}

FleetServer::~FleetServer() {
  for (std::size_t socket = 0; socket < connections_.size(); ++socket) {
    if (connections_[socket]) close(static_cast<int>(socket));
  }
  for (const int descriptor : {wireListener_, pjLinkListener_, datagrams_, events_}) {
    if (descriptor >= 0) close(descriptor);
  }
}

bool FleetServer::Listen() {
  events_ = epoll_create1(EPOLL_CLOEXEC);
  wireListener_ = FleetSockets::Listen(options_.wirePort);
  if (wireListener_ < 0) return false;
  pjLinkListener_ = FleetSockets::Listen(options_.pjLinkPort);
  if (pjLinkListener_ < 0) return false;
  options_.wirePort = FleetSockets::LocalEnd(wireListener_).port;
  options_.pjLinkPort = FleetSockets::LocalEnd(pjLinkListener_).port;
  datagrams_ = FleetSockets::Datagrams(options_.pjLinkPort);
  if (datagrams_ < 0 || !Watch(wireListener_, EPOLLIN) || !Watch(pjLinkListener_, EPOLLIN) ||
      !Watch(datagrams_, EPOLLIN)) {
    return false;
  }
  notifier_ = std::make_unique<QSocketNotifier>(events_, QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &FleetServer::HandleEvents);
  tidying_.start(kTidying);
  if (options_.notices) {
    EachInTurn([this](std::size_t projector) { TellPresence(projector); });
  }
  return true;
}

bool FleetServer::Watch(int descriptor, std::uint32_t events) {
  epoll_event event{.events = events, .data = {.fd = descriptor}};
  return epoll_ctl(events_, EPOLL_CTL_ADD, descriptor, &event) == 0 ||
         epoll_ctl(events_, EPOLL_CTL_MOD, descriptor, &event) == 0;
}

void FleetServer::HandleEvents() {
  std::array<epoll_event, 512> events{};
  const int count = epoll_wait(events_, events.data(), static_cast<int>(events.size()), 0);
  for (int i = 0; i < count; ++i) {
    const auto& [what, data] = events[static_cast<std::size_t>(i)];
    if (data.fd == wireListener_) {
      AcceptAll(data.fd, FleetProtocol::Wire);
    } else if (data.fd == pjLinkListener_) {
      AcceptAll(data.fd, FleetProtocol::PjLink);
    } else if (data.fd == datagrams_) {
      AnswerSearch();
    } else {
      if ((what & EPOLLOUT) != 0) SendRest(data.fd);
      if ((what & ~static_cast<std::uint32_t>(EPOLLOUT)) != 0) Read(data.fd);
    }
  }
}

void FleetServer::AcceptAll(int listener, FleetProtocol protocol) {
  constexpr int kAtOnce = 128;  // so that those that are served go on meanwhile
  for (int i = 0; i < kAtOnce; ++i) {
    const int socket = FleetSockets::Accept(listener);
    if (socket >= 0) {
      Serve(socket, protocol);
    } else if (errno == EMFILE || errno == ENFILE) {
      epoll_ctl(events_, EPOLL_CTL_DEL, listener, nullptr);
      return RunAt(Clock::now() + kPauseWithoutDescriptors,
                   [this, listener] { Watch(listener, EPOLLIN); });
    } else if (errno == EAGAIN) {
      return;
    }
  }
}

void FleetServer::Serve(int socket, FleetProtocol protocol) {
  const auto projector = projectors_.Find(FleetSockets::LocalEnd(socket).address);
  const auto most =
      protocol == FleetProtocol::PjLink ? kMostPjLinkConnections : kMostWireConnections;
  if (!projector || projectors_.At(*projector).asked.open >= most || !Watch(socket, EPOLLIN)) {
    return FleetSockets::Reset(socket);
  }
  const auto place = static_cast<std::size_t>(socket);
  if (place >= connections_.size()) {
    connections_.resize(place + 1);
    generations_.resize(place + 1);
  }
  ++generations_[place];
  connections_[place] =
      std::make_unique<FleetConnection>(projectors_, *projector, protocol, options_.password);
  const std::string greeting = connections_[place]->Greeting();
  if (projectors_.At(*projector).fault.line.kind == LineFault::Kind::Cut) {
    SendSome(socket, greeting);  // it is no reply
  } else {
    Reply(socket, greeting);
  }
}

FleetConnection* FleetServer::ConnectionAt(int socket) {
  const auto place = static_cast<std::size_t>(socket);
  return place < connections_.size() ? connections_[place].get() : nullptr;
}

void FleetServer::Read(int socket) {
  FleetConnection* const connection = ConnectionAt(socket);
  if (!connection) return;  // ended by an event before this one
  std::array<char, 4096> piece{};
  const ssize_t size = recv(socket, piece.data(), piece.size(), 0);
  if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (size <= 0) return End(socket);
  const std::size_t projector = connection->Projector();
  const auto changes = projectors_.At(projector).asked.changes;
  for (const std::string& reply :
       connection->Receive({piece.data(), static_cast<std::size_t>(size)})) {
    Reply(socket, reply);
    if (ConnectionAt(socket) != connection) break;
  }
  if (ConnectionAt(socket) == connection && connection->IsOver()) EndWhenSent(socket);
  if (projectors_.At(projector).asked.changes != changes) TellChanges(projector);
}

void FleetServer::Reply(int socket, std::string_view reply) {
  FleetConnection* const connection = ConnectionAt(socket);
  const LineFault& fault = projectors_.At(connection->Projector()).fault.line;
  const auto now = Clock::now();
  switch (fault.kind) {
    case LineFault::Kind::None:
      return SendSome(socket, reply);
    case LineFault::Kind::Silent:
      return;
    case LineFault::Kind::Late:
      return SendLater(socket, now + std::chrono::milliseconds(fault.amount), std::string(reply),
                       connection->IsOver());
    case LineFault::Kind::Cut:
      SendSome(socket, reply.substr(0, static_cast<std::size_t>(fault.amount)));
      return End(socket);
    case LineFault::Kind::Garbage:
      return SendSome(socket, std::string(reply.size(), '?'));
    case LineFault::Kind::Trickle:
      connection->nextPiece = std::max(connection->nextPiece, now);
      for (std::size_t i = 0; i < reply.size(); ++i) {
        connection->nextPiece += 1ms;
        SendLater(socket, connection->nextPiece, std::string(1, reply[i]),
                  connection->IsOver() && i + 1 == reply.size());
      }
  }
}

void FleetServer::SendSome(int socket, std::string_view bytes) {
  FleetConnection* const connection = ConnectionAt(socket);
  if (!connection || bytes.empty()) return;
  if (connection->unsent.empty()) {
    const ssize_t sent = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent > 0) bytes.remove_prefix(static_cast<std::size_t>(sent));
    if (bytes.empty()) return;
    Watch(socket, EPOLLIN | EPOLLOUT);
  }
  connection->unsent += bytes;
  if (connection->unsent.size() > kMostUnsent) End(socket);
}

void FleetServer::SendRest(int socket) {
  FleetConnection* const connection = ConnectionAt(socket);
  if (!connection) return;
  std::string& unsent = connection->unsent;
  const ssize_t sent = send(socket, unsent.data(), unsent.size(), MSG_NOSIGNAL);
  if (sent < 0 && errno != EAGAIN) return End(socket);
  if (sent > 0) unsent.erase(0, static_cast<std::size_t>(sent));
  if (!unsent.empty()) return;
  if (connection->IsOver()) return End(socket);
  Watch(socket, EPOLLIN);
}

void FleetServer::SendLater(int socket, Clock::time_point due, std::string bytes, bool ends) {
  const std::uint32_t generation = generations_[static_cast<std::size_t>(socket)];
  RunAt(due, [this, socket, generation, bytes = std::move(bytes), ends] {
    if (generations_[static_cast<std::size_t>(socket)] != generation || !ConnectionAt(socket))
      return;
    SendSome(socket, bytes);
    if (ends) EndWhenSent(socket);
  });
}

void FleetServer::EndWhenSent(int socket) {
  const LineFault::Kind fault = projectors_.At(ConnectionAt(socket)->Projector()).fault.line.kind;
  const bool waits = fault == LineFault::Kind::Late || fault == LineFault::Kind::Trickle;
  if (ConnectionAt(socket)->unsent.empty() && !waits) End(socket);
}

void FleetServer::End(int socket) {
  if (!ConnectionAt(socket)) return;
  connections_[static_cast<std::size_t>(socket)].reset();
  close(socket);
}

void FleetServer::Disconnect(std::size_t projector) {
  for (std::size_t socket = 0; socket < connections_.size(); ++socket) {
    if (!connections_[socket] || connections_[socket]->Projector() != projector) continue;
    connections_[socket].reset();
    FleetSockets::Reset(static_cast<int>(socket));
  }
}

void FleetServer::EndAbandoned() {
  const auto now = Clock::now();
  for (std::size_t socket = 0; socket < connections_.size(); ++socket) {
    if (connections_[socket] && connections_[socket]->IsAbandoned(now)) {
      End(static_cast<int>(socket));
    }
  }
}

void FleetServer::AnswerSearch() {
  constexpr std::string_view kSearch = "%2SRCH\r";
  constexpr std::uint32_t kBroadcast = 0x7FFFFFFF;
  while (const auto asked = FleetSockets::Receive(datagrams_)) {
    if (asked->text != kSearch) continue;
    if (asked->to != kBroadcast) {
      if (const auto projector = projectors_.Find(asked->to)) {
        AnswerSearchFrom(*projector, asked->from);
      }
      continue;
    }
    EachInTurn(
        [this, asker = asked->from](std::size_t projector) { AnswerSearchFrom(projector, asker); });
  }
}

// Whoever is sent something by each could not take it all at once.
void FleetServer::EachInTurn(const std::function<void(std::size_t)>& action) {
  constexpr std::size_t kAtOnce = 64;
  constexpr auto kPause = 5ms;
  auto due = Clock::now();
  for (std::size_t first = 0; first < projectors_.Count(); first += kAtOnce, due += kPause) {
    RunAt(due, [this, first, action] {
      const std::size_t end = std::min(first + kAtOnce, projectors_.Count());
      for (std::size_t i = first; i < end; ++i) action(i);
    });
  }
}

void FleetServer::AnswerSearchFrom(std::size_t projector, FleetSockets::End asker) {
  const FleetProjector& found = projectors_.At(projector);
  if (found.address == 0 || found.protocolClass < 2) return;
  if (found.fault.line.kind == LineFault::Kind::Silent) return;
  FleetSockets::Send(datagrams_, found.address, asker,
                     "%2ACKN=" + FleetProjectors::MacOf(projector) + '\r');
}

void FleetServer::TellPresence(std::size_t projector) {
  if (!options_.notices || projectors_.At(projector).protocolClass < 2) return;
  Notify(projectors_.At(projector), "%2LKUP=" + FleetProjectors::MacOf(projector) + '\r');
  TellChanges(projector);
}

void FleetServer::TellChanges(std::size_t projector) {
  FleetProjector& changed = projectors_.At(projector);
  if (!options_.notices || changed.protocolClass < 2) return;
  PjLinkResponder responder(changed.simulated, projectors_.Served(projector));
  std::string told;
  for (const std::string_view question : {"%1POWR ?", "%1ERST ?", "%2INPT ?"}) {
    std::string notice = responder.Answer(question).value_or("") + '\r';
    if (notice.find("ERR") != std::string::npos) continue;  // no input in standby
    notice[1] = '2';
    if (changed.told.find(notice) == std::string::npos) Notify(changed, notice);
    told += notice;
  }
  changed.told = told;
  const auto power = changed.simulated->Power();
  if (power == PowerState::WarmingUp || power == PowerState::CoolingDown) {
    RunAt(Clock::now() + kSwitchingCheck, [this, projector] { TellChanges(projector); });
  }
}

void FleetServer::Notify(const FleetProjector& projector, std::string_view text) {
  if (projector.address == 0 || projector.fault.line.kind == LineFault::Kind::Silent) return;
  FleetSockets::Send(datagrams_, projector.address, *options_.notices, text);
}

void FleetServer::RunAt(Clock::time_point due, Action action) {
  due_.emplace(due, std::move(action));
  const auto wait =
      std::chrono::ceil<std::chrono::milliseconds>(due_.begin()->first - Clock::now());
  timer_.start(std::max(wait, 0ms));
}

void FleetServer::RunDue() {
  while (!due_.empty() && due_.begin()->first <= Clock::now()) {
    const Action action = std::move(due_.extract(due_.begin()).mapped());
    action();
  }
  if (due_.empty()) return;
  const auto wait =
      std::chrono::ceil<std::chrono::milliseconds>(due_.begin()->first - Clock::now());
  timer_.start(std::max(wait, 0ms));
}
