#include "fleet/SocketNetwork.h"

#include <cerrno>
#include <utility>

#include <QUrl>

namespace AdvancedControl {

namespace {

constexpr std::uint64_t kNoticeEvent = UINT64_MAX - 1;  // not the event of any connection
/// Taken at once, so that a flood of notices leaves time for answers.
constexpr int kMostNotices = 64;

}  // namespace

void SocketNetwork::Connect(Peer peer, const std::string& host, std::uint16_t port) {
  SocketConnection& connection = At(peer);
  if (const auto address = ParseSocketAddress(host, port)) {
    connection.Begin({}, port);
    return Open(peer, *address);
  }
  // As the channels look it up: a name may have letters of any language.
  const std::string name = QUrl::toAce(QString::fromStdString(host)).toStdString();
  connection.Begin(name, port);
  if (name.empty()) return Fail(peer, Failure::Kind::NotConnected, ConnectionState::NameUnknown);
  if (names_.IsKnown(name)) return ConnectByName(peer);
  connection.SetStage(Stage::LookingUp);
  names_.LookUp(peer, name);
}

void SocketNetwork::OpenLine(Peer peer, const std::string& device, std::int32_t baud) {
  SocketConnection& connection = At(peer);
  connection.Begin({}, 0);
  switch (connection.OpenLine(device, baud)) {
    case SerialLine::Problem::None:
      return Watch(peer);
    case SerialLine::Problem::NotThere:
      return Fail(peer, Failure::Kind::NotConnected);
    case SerialLine::Problem::InUse:
      return Fail(peer, Failure::Kind::InUse);
  }
}

void SocketNetwork::Send(Peer peer, std::string_view bytes) {
  const SocketConnection& connection = At(peer);
  // There is always room, because little is sent before an answer comes.
  if (connection.GetStage() == Stage::Open && !connection.Send(bytes)) {
    Fail(peer, Failure::Kind::Closed);
  }
}

void SocketNetwork::Close(Peer peer) { At(peer).Close(); }

void SocketNetwork::GiveUp(Peer peer) {
  const SocketConnection& connection = At(peer);
  if (connection.GetStage() == Stage::Connecting && !connection.Name().empty()) {
    names_.TakeFailure(connection.Name(), connection.AddressNumber());
  }
  Close(peer);
}

std::uint16_t SocketNetwork::ListenForNotices(const std::string& address, std::uint16_t port) {
  const std::uint16_t taken = notices_.Open(address, port);
  if (taken != 0) events_.Watch(notices_.File(), kNoticeEvent);
  return taken;
}

void SocketNetwork::Pass(Listener& listener) {
  TakeNames();
  for (const epoll_event& event : events_.Take()) PassEvent(event, listener);
  PassFailures(listener);
}

SocketConnection& SocketNetwork::At(Peer peer) {
  while (peer >= connections_.size()) connections_.emplace_back();
  return connections_[peer];
}

void SocketNetwork::ConnectByName(Peer peer) {
  SocketConnection& connection = At(peer);
  if (connection.Tried() == 0) connection.SetAddressNumber(names_.First(connection.Name()));
  const auto address =
      names_.AddressOf(connection.Name(), connection.Port(), connection.AddressNumber());
  if (!address) return Fail(peer, Failure::Kind::NotConnected, ConnectionState::NameUnknown);
  if (connection.Connect(*address)) return Watch(peer);
  if (!ConnectToNext(peer)) Fail(peer, Failure::Kind::NotConnected);
}

bool SocketNetwork::ConnectToNext(Peer peer) {
  SocketConnection& connection = At(peer);
  if (connection.GetStage() != Stage::Connecting || connection.Name().empty()) return false;
  names_.TakeFailure(connection.Name(), connection.AddressNumber());
  if (connection.Tried() + 1 >= names_.Count(connection.Name())) return false;
  connection.BeginNext();
  ConnectByName(peer);
  return true;
}

void SocketNetwork::Open(Peer peer, const SocketAddress& address) {
  if (At(peer).Connect(address)) return Watch(peer);
  Fail(peer, Failure::Kind::NotConnected);
}

void SocketNetwork::Watch(Peer peer) {
  const SocketConnection& connection = At(peer);
  // Edge-triggered, so that the events need not be changed with each state.
  events_.Watch(connection.File(), std::uint64_t{connection.Attempt()} << 32 | peer,
                EPOLLIN | EPOLLOUT | EPOLLRDHUP | EPOLLET);
}

/// Tells the listener later.
void SocketNetwork::Fail(Peer peer, Failure::Kind kind, ConnectionState problem) {
  SocketConnection& connection = At(peer);
  connection.SetStage(Stage::Failed);
  failures_.push_back({peer, connection.Attempt(), kind, problem});
  Wake();
}

void SocketNetwork::PassNotices(Listener& listener) {
  for (int i = 0; i < kMostNotices; ++i) {
    const auto notice = notices_.Next();
    if (!notice) return;
    listener.Noticed(*notice);
  }
}

void SocketNetwork::PassEvent(const epoll_event& event, Listener& listener) {
  if (event.data.u64 == kNoticeEvent) return PassNotices(listener);
  const auto peer = static_cast<Peer>(event.data.u64);
  const auto attempt = static_cast<std::uint32_t>(event.data.u64 >> 32);
  if (!IsCurrent(peer, attempt)) return;
  SocketConnection& connection = At(peer);
  if (connection.GetStage() == Stage::Failed) return;
  if (connection.GetStage() == Stage::Connecting) {
    if ((event.events & (EPOLLERR | EPOLLHUP)) != 0) {
      if (ConnectToNext(peer)) return;
      connection.Close();
      return listener.NotConnected(peer, ConnectionState::NotReachable);
    }
    if ((event.events & EPOLLOUT) == 0) return;
    connection.SetStage(Stage::Open);
    listener.Connected(peer);
    if (!IsCurrent(peer, attempt)) return;
  }
  constexpr std::uint32_t kReadable = EPOLLIN | EPOLLRDHUP | EPOLLHUP | EPOLLERR;
  if ((event.events & kReadable) != 0) PassBytes(peer, listener);
}

void SocketNetwork::PassBytes(Peer peer, Listener& listener) {
  SocketConnection& connection = At(peer);
  const std::uint32_t attempt = connection.Attempt();
  while (IsCurrent(peer, attempt)) {
    const auto size = connection.Receive(buffer_);
    if (size < 0 && errno == EAGAIN) return;
    if (size <= 0) {
      connection.Close();
      return listener.Closed(peer);
    }
    listener.Received(peer, {buffer_.data(), static_cast<std::size_t>(size)});
  }
}

void SocketNetwork::PassFailures(Listener& listener) {
  for (const Failure& failure : std::exchange(failures_, {})) {
    if (!IsCurrent(failure.peer, failure.attempt)) continue;
    Close(failure.peer);
    switch (failure.kind) {
      case Failure::Kind::NotConnected:
        listener.NotConnected(failure.peer, failure.problem);
        break;
      case Failure::Kind::InUse:
        listener.InUse(failure.peer);
        break;
      case Failure::Kind::Closed:
        listener.Closed(failure.peer);
    }
  }
}

void SocketNetwork::TakeNames() {
  for (const HostNames::Answer& answer : names_.Take()) {
    const SocketConnection& connection = At(answer.asker);
    if (connection.GetStage() == Stage::LookingUp && connection.Name() == answer.name) {
      ConnectByName(answer.asker);
    }
  }
}

bool SocketNetwork::IsCurrent(Peer peer, std::uint32_t attempt) const {
  return peer < connections_.size() && connections_[peer].Attempt() == attempt &&
         connections_[peer].GetStage() != Stage::None;
}

}  // namespace AdvancedControl
