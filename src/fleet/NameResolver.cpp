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

std::vector<SocketAddress> AddressesOf(const std::string& name) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_ADDRCONFIG;
  addrinfo* first = nullptr;
  if (getaddrinfo(name.c_str(), nullptr, &hints, &first) != 0) return {};
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> list(first, freeaddrinfo);
  std::vector<SocketAddress> addresses;
  for (const addrinfo* found = first; found != nullptr; found = found->ai_next) {
    if (const auto address = SocketAddress::Of(*found->ai_addr)) addresses.push_back(*address);
  }
  return addresses;
}

}  // namespace

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
