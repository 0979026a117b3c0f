#pragma once

#include <atomic>
#include <climits>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <optional>
#include <poll.h>
#include <pty.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QTcpServer>
#include <QTemporaryDir>

enum class Transport { Tcp, Serial };

/// The other end of connections, on its own thread. The first connection gets the first behaviour,
/// and so on; further ones get the last. When a behaviour returns, its connection is closed; a
/// serial line is hung up and replaced by a new one.
class Peer {
 public:
  class End {
   public:
    End(int file, std::function<bool()> isOver) : file_(file), isOver_(std::move(isOver)) {}

    /// Waits for bytes and returns them; empty if the connection has ended.
    std::string Receive() {
      std::string bytes(std::size_t{64} * 1024, '\0');
      const ssize_t size = IsReady(POLLIN) ? read(file_, bytes.data(), bytes.size()) : 0;
      bytes.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
      return bytes;
    }
    /// False if the connection has ended.
    bool Send(std::string_view bytes) {
      while (!bytes.empty() && IsReady(POLLOUT)) {
        const ssize_t size = write(file_, bytes.data(), bytes.size());
        if (size < 0 && errno != EAGAIN) return false;
        bytes.remove_prefix(size > 0 ? static_cast<std::size_t>(size) : 0);
      }
      return bytes.empty();
    }
    /// Sends nothing more, and waits for the end of the connection.
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

  /// Sends the first text at once, each further one after a request, and then nothing.
  static Behaviour Says(std::vector<std::string> texts, bool keepsOpen = true) {
    return [texts = std::move(texts), keepsOpen](End& end) {
      for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0 && end.Receive().empty()) return;
        end.Send(texts[i]);
      }
      if (keepsOpen) end.Listen();
    };
  }

  /// Sends the greeting, and for each line the result of `answer`. No result closes the connection.
  static Behaviour AnswersLines(
      std::string greeting, std::function<std::optional<std::string>(const std::string&)> answer) {
    return [greeting = std::move(greeting), answer = std::move(answer)](End& end) {
      end.Send(greeting);
      std::string held;
      for (auto bytes = end.Receive(); !bytes.empty(); bytes = end.Receive()) {
        held += bytes;
        for (auto stop = held.find('\r'); stop != std::string::npos; stop = held.find('\r')) {
          const auto reply = answer(held.substr(0, stop));
          if (!reply) return;
          end.Send(*reply);
          held.erase(0, stop + 1);
        }
      }
    };
  }

  Peer(Transport transport, std::vector<Behaviour> behaviours)
      : behaviours_(std::move(behaviours)) {
    std::signal(SIGPIPE, SIG_IGN);
    thread_ = std::jthread([this, transport] { Run(transport); });
    Finish(0);
  }
  ~Peer() { wanted_ = INT_MAX; }

  /// Ends the first `count` connections. Returns when the next one is possible.
  void Finish(int count) {
    wanted_ = count;
    for (int done = finished_; done < count; done = finished_) finished_.wait(done);
  }

  std::uint16_t port = 0;  ///< 0 for a serial line.
  std::string Device() const { return folder_.filePath("line").toStdString(); }

 private:
  void Run(Transport transport) {
    QTcpServer listener;
    if (transport == Transport::Tcp) {
      listener.listen(QHostAddress::LocalHost);
      port = listener.serverPort();
    }
    for (int index = 0; wanted_ < INT_MAX; ++index) {
      // The other end is kept open so that the line survives while nobody else has it open.
      int line = -1, otherEnd = -1;
      if (transport == Transport::Serial) {
        termios raw{};
        cfmakeraw(&raw);
        openpty(&line, &otherEnd, nullptr, &raw, nullptr);
        // What came before is the head of a reply.
        pollfd before{otherEnd, POLLIN, 0};
        if (write(line, "\xA5\x5A\4\7", 4) == 4) poll(&before, 1, -1);
        std::filesystem::create_symlink(ttyname(otherEnd), Device());
      }
      finished_ = index;
      finished_.notify_all();
      while (line < 0 && wanted_ < INT_MAX) {
        pollfd polled{static_cast<int>(listener.socketDescriptor()), POLLIN, 0};
        if (poll(&polled, 1, 5) > 0) line = accept(polled.fd, nullptr, nullptr);
      }
      if (line < 0) return;
      fcntl(line, F_SETFL, O_NONBLOCK);
      End end(line, [this, index] { return wanted_ > index; });
      behaviours_[std::min(static_cast<std::size_t>(index), behaviours_.size() - 1)](end);
      std::filesystem::remove(Device());  // the terminal behind it is somebody else's soon
      close(line);
      close(otherEnd);
    }
  }

  const std::vector<Behaviour> behaviours_;
  const QTemporaryDir folder_;
  std::atomic<int> wanted_ = 0;
  std::atomic<int> finished_ = -1;
  std::jthread thread_;
};
