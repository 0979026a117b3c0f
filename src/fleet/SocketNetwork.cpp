#include "fleet/SocketNetwork.h"

#include <algorithm>
#include <cerrno>
#include <netinet/tcp.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "fleet/SerialLine.h"

namespace AdvancedControl {

namespace {

// What no connection's event is called.
constexpr std::uint64_t kWakeEvent = UINT64_MAX;
constexpr std::uint64_t kNoticeEvent = UINT64_MAX - 1;
/// Taken at once, so that a flood of notices leaves time for answers.
constexpr int kMostNotices = 64;
/// For so long a name's addresses are not looked up again.
constexpr std::chrono::minutes kNameLasts{10};

int Checked(int file) {
  if (file < 0) throw std::system_error(errno, std::generic_category(), "event file");
  return file;
}

void Watch(int epoll, int file, std::uint64_t data) {
  epoll_event event{.events = EPOLLIN, .data = {.u64 = data}};
  epoll_ctl(epoll, EPOLL_CTL_ADD, file, &event);
}

int OpenWakes(int epoll) {
  const int wakes = Checked(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC));
  Watch(epoll, wakes, kWakeEvent);
  return wakes;
}

socklen_t SizeOf(const SocketAddress& address) {
  return address.any.sa_family == AF_INET ? sizeof address.v4 : sizeof address.v6;
}

}  // namespace

SocketNetwork::SocketNetwork()
    : epoll_(Checked(epoll_create1(EPOLL_CLOEXEC))), wakes_(OpenWakes(epoll_)), resolver_(wakes_) {}

SocketNetwork::~SocketNetwork() {
  for (Peer peer = 0; peer < links_.size(); ++peer) Close(peer);
  close(wakes_);
  close(epoll_);
}

void SocketNetwork::Connect(Peer peer, const std::string& host, std::uint16_t port) {
  Close(peer);
  Link& link = LinkOf(peer);
  ++link.generation;
  link.port = port;
  if (const auto address = ParseSocketAddress(host, port)) {
    link.name.clear();
    return Open(peer, *address);
  }
  link.name = host;
  const auto known = names_.find(host);
  if (known != names_.end() && std::chrono::steady_clock::now() < known->second.time + kNameLasts) {
    return ConnectByName(peer);
  }
  link.stage = Stage::LookingUp;
  resolver_.LookUp(peer, host);
}

void SocketNetwork::OpenLine(Peer peer, const std::string& device, std::int32_t baud) {
  Close(peer);
  Link& link = LinkOf(peer);
  ++link.generation;
  link.name.clear();
  auto problem = SerialLine::Problem::None;
  link.file = SerialLine::Open(device, baud, problem);
  link.isLine = true;
  if (link.file >= 0) return WatchFile(peer);
  Fail(peer,
       problem == SerialLine::Problem::InUse ? Failure::Kind::InUse : Failure::Kind::NotConnected);
}

void SocketNetwork::Send(Peer peer, std::string_view bytes) {
  const Link& link = LinkOf(peer);
  if (link.stage != Stage::Open) return;
  const auto sent = link.isLine ? write(link.file, bytes.data(), bytes.size())
                                : send(link.file, bytes.data(), bytes.size(), MSG_NOSIGNAL);
  // The little that is ever sent always has room, as an answer comes before there is more.
  if (sent != static_cast<ssize_t>(bytes.size())) Fail(peer, Failure::Kind::Closed);
}

void SocketNetwork::Close(Peer peer) {
  Link& link = LinkOf(peer);
  link.stage = Stage::None;
  const int file = std::exchange(link.file, -1);
  const bool isLine = std::exchange(link.isLine, false);
  if (file < 0) return;
  if (isLine) {
    SerialLine::Close(file);
  } else {
    close(file);
  }
}

std::uint16_t SocketNetwork::ListenForNotices(const std::string& address, std::uint16_t port) {
  const std::uint16_t taken = notices_.Open(address, port);
  if (taken != 0) Watch(epoll_, notices_.File(), kNoticeEvent);
  return taken;
}

void SocketNetwork::Wait(SessionTime until) {
  using Milliseconds = std::chrono::milliseconds;
  constexpr Milliseconds kLongest{60'000};
  const auto now = std::chrono::steady_clock::now();
  const auto rest = until <= now             ? Milliseconds::zero()
                    : until - now > kLongest ? kLongest
                                             : std::chrono::ceil<Milliseconds>(until - now);
  count_ = std::max(0, epoll_wait(epoll_, events_.data(), static_cast<int>(events_.size()),
                                  static_cast<int>(rest.count())));
}

void SocketNetwork::Wake() const {
  const std::uint64_t one = 1;
  static_cast<void>(!write(wakes_, &one, sizeof one));
}

void SocketNetwork::Pass(Listener& listener) {
  const int count = std::exchange(count_, 0);
  for (int i = 0; i < count; ++i) {
    PassEvent(events_.at(static_cast<std::size_t>(i)), listener);
  }
  for (const Failure& failure : std::exchange(failures_, {})) {
    if (!IsCurrent(failure.peer, failure.generation)) continue;
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

SocketNetwork::Link& SocketNetwork::LinkOf(Peer peer) {
  if (peer >= links_.size()) links_.resize(peer + 1);
  return links_[peer];
}

void SocketNetwork::ConnectByName(Peer peer) {
  const Link& link = LinkOf(peer);
  const Known& known = names_.at(link.name);
  if (known.addresses.empty()) {
    return Fail(peer, Failure::Kind::NotConnected, ConnectionState::NameUnknown);
  }
  SocketAddress address = known.addresses[known.next % known.addresses.size()];
  (address.any.sa_family == AF_INET ? address.v4.sin_port : address.v6.sin6_port) =
      htons(link.port);
  Open(peer, address);
}

void SocketNetwork::Open(Peer peer, const SocketAddress& address) {
  Link& link = LinkOf(peer);
  link.file = socket(address.any.sa_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (link.file < 0) return Fail(peer, Failure::Kind::NotConnected);
  const int on = 1;
  setsockopt(link.file, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  if (connect(link.file, &address.any, SizeOf(address)) != 0 && errno != EINPROGRESS) {
    return Fail(peer, Failure::Kind::NotConnected);
  }
  WatchFile(peer);
}

void SocketNetwork::WatchFile(Peer peer) {
  Link& link = LinkOf(peer);
  link.stage = Stage::Connecting;
  // Edges are told once, so that nothing has to be asked for anew with each state.
  epoll_event event{.events = EPOLLIN | EPOLLOUT | EPOLLRDHUP | EPOLLET,
                    .data = {.u64 = std::uint64_t{link.generation} << 32 | peer}};
  epoll_ctl(epoll_, EPOLL_CTL_ADD, link.file, &event);
}

/// Tells the listener later.
void SocketNetwork::Fail(Peer peer, Failure::Kind kind, ConnectionState problem) {
  Link& link = LinkOf(peer);
  link.stage = Stage::Failed;
  failures_.push_back({peer, link.generation, kind, problem});
  Wake();
}

void SocketNetwork::PassNotices(Listener& listener) {
  for (int i = 0; i < kMostNotices; ++i) {
    const auto sender = notices_.Next();
    if (!sender) return;
    listener.Noticed(*sender);
  }
}

void SocketNetwork::PassEvent(const epoll_event& event, Listener& listener) {
  if (event.data.u64 == kNoticeEvent) return PassNotices(listener);
  if (event.data.u64 == kWakeEvent) {
    std::uint64_t count = 0;
    static_cast<void>(!read(wakes_, &count, sizeof count));
    return TakeNames();
  }
  const auto peer = static_cast<Peer>(event.data.u64);
  const auto generation = static_cast<std::uint32_t>(event.data.u64 >> 32);
  if (!IsCurrent(peer, generation) || links_[peer].stage == Stage::Failed) return;
  if (links_[peer].stage == Stage::Connecting) {
    if ((event.events & (EPOLLERR | EPOLLHUP)) != 0) {
      if (const auto known = names_.find(links_[peer].name); known != names_.end()) {
        ++known->second.next;
      }
      Close(peer);
      return listener.NotConnected(peer, ConnectionState::NotReachable);
    }
    if ((event.events & EPOLLOUT) == 0) return;
    links_[peer].stage = Stage::Open;
    listener.Connected(peer);
    if (!IsCurrent(peer, generation)) return;
  }
  constexpr std::uint32_t kReadable = EPOLLIN | EPOLLRDHUP | EPOLLHUP | EPOLLERR;
  if ((event.events & kReadable) != 0) PassBytes(peer, listener);
}

void SocketNetwork::PassBytes(Peer peer, Listener& listener) {
  const std::uint32_t generation = links_[peer].generation;
  while (IsCurrent(peer, generation)) {
    const auto size = read(links_[peer].file, buffer_.data(), buffer_.size());
    if (size < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) return;
    if (size <= 0) {
      Close(peer);
      return listener.Closed(peer);
    }
    listener.Received(peer, {buffer_.data(), static_cast<std::size_t>(size)});
  }
}

void SocketNetwork::TakeNames() {
  for (auto& found : resolver_.Take()) {
    names_[found.name] = {std::move(found.addresses), 0, std::chrono::steady_clock::now()};
    const Link& link = LinkOf(found.asker);
    if (link.stage == Stage::LookingUp && link.name == found.name) ConnectByName(found.asker);
  }
}

bool SocketNetwork::IsCurrent(Peer peer, std::uint32_t generation) const {
  return peer < links_.size() && links_[peer].generation == generation &&
         links_[peer].stage != Stage::None;
}

}  // namespace AdvancedControl
