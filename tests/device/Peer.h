#pragma once

#include <atomic>
#include <climits>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <pty.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include <QTemporaryDir>

enum class Way { Tcp, Serial };

/// The other end of connections, on a thread of its own: does with the first what the first
/// behaviour says, and so on; with further ones what the last says. When a behaviour returns, its
/// connection is closed: a serial line is hung up, and a new one takes its place.
class Peer {
 public:
  class End {
   public:
    End(int file, std::function<bool()> isOver) : file_(file), isOver_(std::move(isOver)) {}

    /// What came; nothing when the connection is over.
    std::string Receive() {
      std::string bytes(std::size_t{64} * 1024, '\0');
      const ssize_t size = IsReady(POLLIN) ? read(file_, bytes.data(), bytes.size()) : 0;
      bytes.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
      return bytes;
    }
    void Send(std::string_view bytes) {
      while (!bytes.empty() && IsReady(POLLOUT)) {
        const ssize_t size = write(file_, bytes.data(), bytes.size());
        if (size < 0 && errno != EAGAIN) return;
        bytes.remove_prefix(size > 0 ? static_cast<std::size_t>(size) : 0);
      }
    }
    /// Says nothing more, as long as the connection lasts.
    void Listen() {
      while (!Receive().empty()) continue;
    }
    bool IsReady(short event) {
      pollfd polled{file_, event, 0};
      while (!isOver_() && poll(&polled, 1, 5) == 0) continue;
      return !isOver_();
    }

   private:
    const int file_;
    const std::function<bool()> isOver_;
  };
  using Behaviour = std::function<void(End&)>;

  Peer(Way way, std::vector<Behaviour> behaviours) : way_(way), behaviours_(std::move(behaviours)) {
    std::signal(SIGPIPE, SIG_IGN);
    if (way == Way::Tcp) {
      sockaddr_in address{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}};
      socklen_t size = sizeof address;
      auto* const where = reinterpret_cast<sockaddr*>(&address);
      listener_ = socket(AF_INET, SOCK_STREAM, 0);
      if (bind(listener_, where, size) == 0 && listen(listener_, 4) == 0) {
        getsockname(listener_, where, &size);
      }
      port = ntohs(address.sin_port);
    } else {
      LayLine();
    }
    thread_ = std::thread([this] { Run(); });
  }
  ~Peer() {
    wanted_ = INT_MAX;
    thread_.join();
    for (const int file : {listener_, line_, otherEnd_}) close(file);
  }

  /// Ends the first `count` connections, and returns when they are closed.
  void Finish(int count) {
    wanted_ = count;
    for (int done = finished_; done < count; done = finished_) finished_.wait(done);
  }

  std::uint16_t port = 0;
  std::string Device() const { return folder_.filePath("line").toStdString(); }

 private:
  void LayLine() {
    openpty(&line_, &otherEnd_, nullptr, nullptr, nullptr);
    fcntl(line_, F_SETFL, O_NONBLOCK);
    std::filesystem::remove(Device());
    std::filesystem::create_symlink(ttyname(otherEnd_), Device());
  }
  void Run() {
    for (std::size_t i = 0; wanted_ < INT_MAX; ++i) {
      const auto isOver = [this, i] { return wanted_ > static_cast<int>(i); };
      if (way_ == Way::Tcp) {
        if (!End(listener_, [this] { return wanted_ == INT_MAX; }).IsReady(POLLIN)) return;
        const int noDelay = 1;
        line_ = accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK);
        setsockopt(line_, IPPROTO_TCP, TCP_NODELAY, &noDelay, sizeof noDelay);
      }
      End end(line_, isOver);
      behaviours_[std::min(i, behaviours_.size() - 1)](end);
      close(std::exchange(line_, -1));
      close(std::exchange(otherEnd_, -1));
      if (way_ == Way::Serial) LayLine();
      ++finished_;
      finished_.notify_all();
    }
  }

  const Way way_;
  const std::vector<Behaviour> behaviours_;
  const QTemporaryDir folder_;
  int listener_ = -1;
  int line_ = -1;
  int otherEnd_ = -1;  // of a serial line; held, so that the line lasts while nobody has it open
  std::atomic<int> wanted_ = 0;
  std::atomic<int> finished_ = 0;
  std::thread thread_;
};
