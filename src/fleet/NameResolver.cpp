#include "fleet/NameResolver.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <netdb.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace AdvancedControl {

namespace {

constexpr int kThreads = 2;

using AddressList = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

AddressList Ask(const std::string& name, int flags) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = flags;
  addrinfo* found = nullptr;
  if (getaddrinfo(name.c_str(), nullptr, &hints, &found) != 0) found = nullptr;
  return {found, freeaddrinfo};
}

std::optional<SocketAddress> AddressOf(const addrinfo& found) {
  SocketAddress address{};
  if (found.ai_family == AF_INET) {
    address.v4 = *reinterpret_cast<const sockaddr_in*>(found.ai_addr);
  } else if (found.ai_family == AF_INET6) {
    address.v6 = *reinterpret_cast<const sockaddr_in6*>(found.ai_addr);
  } else {
    return std::nullopt;
  }
  return address;
}

std::vector<SocketAddress> AddressesOf(const std::string& name) {
  const AddressList list = Ask(name, AI_ADDRCONFIG);
  std::vector<SocketAddress> addresses;
  for (const addrinfo* found = list.get(); found != nullptr; found = found->ai_next) {
    if (const auto address = AddressOf(*found)) addresses.push_back(*address);
  }
  return addresses;
}

}  // namespace

std::optional<SocketAddress> ParseSocketAddress(const std::string& text, std::uint16_t port) {
  const AddressList list = Ask(text, AI_NUMERICHOST);
  auto address = list ? AddressOf(*list) : std::nullopt;
  if (address && address->any.sa_family == AF_INET) address->v4.sin_port = htons(port);
  if (address && address->any.sa_family == AF_INET6) address->v6.sin6_port = htons(port);
  return address;
}

struct NameResolver::Shared {
  std::mutex mutex;
  std::condition_variable comes;
  std::deque<std::pair<std::uint32_t, std::string>> wanted;
  std::vector<Found> found;
  bool ends = false;
  int wakes = -1;

  ~Shared() { close(wakes); }

  void Work() {
    std::unique_lock lock(mutex);
    while (true) {
      comes.wait(lock, [this] { return ends || !wanted.empty(); });
      if (ends) return;
      auto [asker, name] = std::move(wanted.front());
      wanted.pop_front();
      lock.unlock();
      auto addresses = AddressesOf(name);
      lock.lock();
      found.push_back({asker, std::move(name), std::move(addresses)});
      const std::uint64_t one = 1;
      static_cast<void>(!write(wakes, &one, sizeof one));
    }
  }
};

NameResolver::NameResolver(int wakes) : shared_(std::make_shared<Shared>()) {
  shared_->wakes = dup(wakes);
}

NameResolver::~NameResolver() {
  const std::lock_guard lock(shared_->mutex);
  shared_->ends = true;
  shared_->comes.notify_all();
}

void NameResolver::LookUp(std::uint32_t asker, const std::string& name) {
  {
    const std::lock_guard lock(shared_->mutex);
    shared_->wanted.emplace_back(asker, name);
  }
  shared_->comes.notify_one();
  if (threads_ == kThreads) return;
  ++threads_;
  std::thread([shared = shared_] { shared->Work(); }).detach();
}

std::vector<NameResolver::Found> NameResolver::Take() {
  const std::lock_guard lock(shared_->mutex);
  return std::exchange(shared_->found, {});
}

}  // namespace AdvancedControl
