#pragma once

#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <functional>
#include <mutex>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QDir>
#include <gtest/gtest.h>

#include "tests/acctl/AcctlProgram.h"

/// A PJLink projector of class 1 that answers as the test says.
class ScriptedPjLink {
 public:
  /// The parameter of the reply to a request like "POWR ?"; "" answers nothing, "hang up" closes
  /// the connection instead.
  using Script = std::function<std::string(const std::string& request)>;

  explicit ScriptedPjLink(Script script) : script_(std::move(script)) {
    // The next projector may have this one's port.
    QDir(kCache.path()).removeRecursively();
    listener_ = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(bind(listener_, any, size) + listen(listener_, 8), 0);
    EXPECT_EQ(getsockname(listener_, any, &size), 0);
    port_ = ntohs(address.sin_port);
    thread_ = std::jthread([this](const std::stop_token& stop) { Serve(stop); });
  }
  ~ScriptedPjLink() {
    thread_.request_stop();
    thread_.join();
    close(listener_);
  }

  QStringList At(const QStringList& arguments) const {
    return QStringList{"--connect", QStringLiteral("pjlink://127.0.0.1:%1").arg(port_)} + arguments;
  }
  /// How often something was asked so far.
  auto Count(const std::string& request) {
    const std::lock_guard lock(mutex_);
    return std::ranges::count(requests_, request);
  }

 private:
  static bool IsReady(int descriptor) {
    pollfd waiting{descriptor, POLLIN, 0};
    return poll(&waiting, 1, 20) > 0;
  }

  void Serve(const std::stop_token& stop) {
    while (!stop.stop_requested()) {
      if (!IsReady(listener_)) continue;
      const int client = accept(listener_, nullptr, nullptr);
      Send(client, "PJLINK 0\r");
      std::string line;
      for (char c = 0; !stop.stop_requested();) {
        if (!IsReady(client)) continue;
        if (read(client, &c, 1) != 1) break;
        if (c != '\r') {
          line += c;
        } else if (!Answer(client, std::exchange(line, {}))) {
          break;
        }
      }
      close(client);
    }
  }

  bool Answer(int client, const std::string& line) {
    const std::string request = line.substr(std::min<std::size_t>(2, line.size()));
    {
      const std::lock_guard lock(mutex_);
      requests_.push_back(request);
    }
    const std::string reply = script_(request);
    if (reply == "hang up") return false;
    if (!reply.empty()) Send(client, line.substr(0, 6) + '=' + reply + '\r');
    return true;
  }

  static void Send(int client, const std::string& text) {
    send(client, text.data(), text.size(), MSG_NOSIGNAL);
  }

  const Script script_;
  int listener_ = -1;
  int port_ = 0;
  std::mutex mutex_;
  std::vector<std::string> requests_;
  std::jthread thread_;
};
