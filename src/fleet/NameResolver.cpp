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
    // unreachable: the system finds only addresses of the two kinds today
    if (const auto address = SocketAddress::Of(*found->ai_addr)) addresses.push_back(*address);
  }
  return addresses;
}

}  // namespace

/// What one resolver wants, and what was found for it.
struct NameResolver::Client {
  ~Client() {
    if (wakes != kNoFile) close(wakes);
  }

  // Protected by the mutex of the lookups.
  std::deque<std::pair<std::uint32_t, std::string>> wanted{};
  std::vector<Found> found{};
  bool ends = false;
  int wakes = kNoFile;
};

/// The threads that look names up, and the resolvers that wait for them. The resolvers take turns.
struct NameResolver::Lookups {
  std::mutex mutex;
  std::condition_variable comes;
  // Protected by the mutex.
  std::deque<std::shared_ptr<Client>> waiting;
  int threads = 0;

  // Never destroyed: a lookup may outlive `main`.
  static Lookups& All() {
    static auto* const all = new Lookups;
    return *all;
  }

  void Work() {
    std::unique_lock lock(mutex);
    while (true) {
      comes.wait(lock, [this] { return !waiting.empty(); });
      const auto client = std::move(waiting.front());
      waiting.pop_front();
      if (client->ends) continue;
      auto [asker, name] = std::move(client->wanted.front());
      client->wanted.pop_front();
      if (!client->wanted.empty()) waiting.push_back(client);
      lock.unlock();
      auto addresses = AddressesOf(name);
      lock.lock();
      client->found.push_back({asker, std::move(name), std::move(addresses)});
      if (client->wakes == kNoFile) continue;
      const std::uint64_t one = 1;
      static_cast<void>(!write(client->wakes, &one, sizeof one));
    }
  }
};

NameResolver::NameResolver(int wakes) : client_(std::make_shared<Client>()) {
  if (wakes != kNoFile) client_->wakes = dup(wakes);
}

NameResolver::~NameResolver() {
  const std::lock_guard lock(Lookups::All().mutex);
  client_->ends = true;
}

void NameResolver::LookUp(std::uint32_t asker, const std::string& name) {
  Lookups& all = Lookups::All();
  const std::lock_guard lock(all.mutex);
  client_->wanted.emplace_back(asker, name);
  if (client_->wanted.size() == 1) all.waiting.push_back(client_);
  all.comes.notify_one();
  if (all.threads == kThreads) return;
  ++all.threads;
  std::thread([&all] { all.Work(); }).detach();
}

std::vector<NameResolver::Found> NameResolver::Take() {
  const std::lock_guard lock(Lookups::All().mutex);
  return std::exchange(client_->found, {});
}

}  // namespace AdvancedControl
