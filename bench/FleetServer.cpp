#include "bench/FleetServer.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <string_view>
#include <sys/epoll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <unordered_map>

#include "device/ProjectorChannel.h"
#include "simulator/WireResponder.h"

namespace {

class Device final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override {
    return {.result = AcceptedResult(command.operation), .value = 1};
  }
};

std::string PjLinkReply(std::string_view request) {
  constexpr std::pair<std::string_view, std::string_view> kAnswers[] = {
      {"POWR", "1"}, {"INPT", "31"},     {"ERST", "000000"}, {"AVMT", "30"},  {"FREZ", "0"},
      {"CLSS", "2"}, {"LAMP", "1200 1"}, {"FILT", "80"},     {"INNM", "HDMI"}};
  for (const auto& [command, answer] : kAnswers) {
    if (request.substr(2, 4) == command) {
      return std::string(request.substr(0, 6)) + '=' + std::string(answer) + '\r';
    }
  }
  return {};
}

int Listen(std::uint16_t& port) {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (listener < 0 || bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      listen(listener, 64) != 0 ||
      getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    std::abort();
  }
  port = ntohs(address.sin_port);
  return listener;
}

/// Serves until the process is killed.
[[noreturn]] void Serve(FleetServer::Protocol protocol, const std::vector<int>& listeners,
                        int silentOne) {
  const bool isWire = protocol == FleetServer::Protocol::Wire;
  const int epoll = epoll_create1(EPOLL_CLOEXEC);
  const auto watch = [epoll](int file, bool listens) {
    epoll_event event{.events = EPOLLIN,
                      .data = {.u64 = std::uint64_t{listens} << 32 | static_cast<unsigned>(file)}};
    epoll_ctl(epoll, EPOLL_CTL_ADD, file, &event);
  };
  for (std::size_t i = 0; i < listeners.size(); ++i) {
    // The system accepts connections to one that is not watched, but nothing answers.
    if (silentOne == 0 || i % static_cast<std::size_t>(silentOne) != 0) watch(listeners[i], true);
  }
  Device device;
  std::unordered_map<int, std::unique_ptr<WireResponder>> responders;
  std::array<epoll_event, 64> events{};
  std::array<char, 2048> buffer{};
  while (true) {
    const int count = epoll_wait(epoll, events.data(), static_cast<int>(events.size()), -1);
    for (int i = 0; i < count; ++i) {
      const std::uint64_t data = events.at(static_cast<std::size_t>(i)).data.u64;
      const int file = static_cast<int>(data & 0xFFFFFFFF);
      if (data >> 32 != 0) {
        const int client = accept4(file, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0) continue;
        const int on = 1;
        setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        watch(client, false);
        if (isWire) {
          responders[client] = std::make_unique<WireResponder>(device);
        } else {
          send(client, "PJLINK 0\r", 9, MSG_NOSIGNAL);
        }
        continue;
      }
      const auto size = recv(file, buffer.data(), buffer.size(), 0);
      if (size <= 0) {
        close(file);
        continue;
      }
      const std::string_view bytes(buffer.data(), static_cast<std::size_t>(size));
      const std::string answer = isWire ? responders[file]->Receive(bytes) : PjLinkReply(bytes);
      send(file, answer.data(), answer.size(), MSG_NOSIGNAL);
    }
  }
}

}  // namespace

FleetServer::FleetServer(Protocol protocol, int projectors, int silentOne) {
  rlimit files{};
  getrlimit(RLIMIT_NOFILE, &files);
  files.rlim_cur = files.rlim_max;
  setrlimit(RLIMIT_NOFILE, &files);
  std::vector<int> listeners;
  for (int i = 0; i < projectors; ++i) {
    std::uint16_t port = 0;
    listeners.push_back(Listen(port));
    ports_.push_back(port);
  }
  process_ = fork();
  if (process_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    Serve(protocol, listeners, silentOne);
  }
  for (const int listener : listeners) close(listener);
}

FleetServer::~FleetServer() {
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}
