#pragma once

#include <atomic>
#include <climits>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <future>
#include <poll.h>
#include <pty.h>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QTcpServer>
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

   private:
    bool IsReady(short event) {
      pollfd polled{file_, event, 0};
      while (!isOver_() && poll(&polled, 1, 5) == 0) continue;
      return !isOver_();
    }

    const int file_;
    const std::function<bool()> isOver_;
  };
  using Behaviour = std::function<void(End&)>;

  Peer(Way way, std::vector<Behaviour> behaviours) : behaviours_(std::move(behaviours)) {
    std::signal(SIGPIPE, SIG_IGN);
    std::promise<std::uint16_t> isReady;
    thread_ = std::thread([&] { way == Way::Tcp ? RunTcp(isReady) : RunSerial(isReady); });
    port = isReady.get_future().get();
  }
  ~Peer() {
    wanted_ = INT_MAX;
    thread_.join();
  }

  /// Ends the first `count` connections, and returns when they are closed.
  void Finish(int count) {
    wanted_ = count;
    for (int done = finished_; done < count; done = finished_) finished_.wait(done);
  }

  std::uint16_t port;  ///< 0 of a serial line.
  std::string Device() const { return folder_.filePath("line").toStdString(); }

 private:
  /// Hands connections over as they come.
  struct Listener final : QTcpServer {
    void incomingConnection(qintptr descriptor) override {
      accepted = static_cast<int>(descriptor);
    }
    int accepted = -1;
  };

  void RunTcp(std::promise<std::uint16_t>& isReady) {
    Listener listener;
    listener.listen(QHostAddress::LocalHost);
    isReady.set_value(listener.serverPort());
    while (wanted_ < INT_MAX) {
      if (!listener.waitForNewConnection(5)) continue;
      Behave(listener.accepted);
      close(listener.accepted);
      CountFinished();
    }
  }

  void RunSerial(std::promise<std::uint16_t>& isReady) {
    for (int line = -1, otherEnd = -1; wanted_ < INT_MAX;) {
      // The other end is held, so that the line lasts while nobody has it open.
      openpty(&line, &otherEnd, nullptr, nullptr, nullptr);
      std::filesystem::remove(Device());
      std::filesystem::create_symlink(ttyname(otherEnd), Device());
      if (served_ == 0) {
        isReady.set_value(0);
      } else {
        CountFinished();
      }
      Behave(line);
      close(line);
      close(otherEnd);
    }
  }

  void Behave(int line) {
    fcntl(line, F_SETFL, O_NONBLOCK);
    const std::size_t index = served_++;
    End end(line, [this, index] { return wanted_ > static_cast<int>(index); });
    behaviours_[std::min(index, behaviours_.size() - 1)](end);
  }
  void CountFinished() {
    ++finished_;
    finished_.notify_all();
  }

  const std::vector<Behaviour> behaviours_;
  const QTemporaryDir folder_;
  std::size_t served_ = 0;
  std::atomic<int> wanted_ = 0;
  std::atomic<int> finished_ = 0;
  std::thread thread_;
};
