#pragma once

#include <algorithm>
#include <mutex>

#include "tests/acctl/AcctlProgram.h"
#include "tests/device/Peer.h"

/// A PJLink projector of class 1 that answers as the test says.
class ScriptedPjLink {
 public:
  /// The parameter of the reply to a request like "POWR ?"; "" answers nothing, "hang up" closes
  /// the connection instead.
  using Script = std::function<std::string(const std::string& request)>;

  explicit ScriptedPjLink(Script script) : script_(std::move(script)) {
    // The next projector may have this one's port.
    QDir(kCache.path()).removeRecursively();
  }

  QStringList At(const QStringList& arguments) const {
    return QStringList{"--connect", QStringLiteral("pjlink://127.0.0.1:%1").arg(peer_.port)} +
           arguments;
  }
  int Port() const { return peer_.port; }
  /// How many connections were made so far.
  int Connections() const { return connections_; }
  /// How often something was asked so far.
  auto Count(const std::string& request) {
    const std::lock_guard lock(mutex_);
    return std::ranges::count(requests_, request);
  }

 private:
  std::optional<std::string> Answer(const std::string& line) {
    const std::string request = line.substr(std::min<std::size_t>(2, line.size()));
    {
      const std::lock_guard lock(mutex_);
      requests_.push_back(request);
    }
    const std::string reply = script_(request);
    if (reply == "hang up") return {};
    return reply.empty() ? "" : line.substr(0, 6) + '=' + reply + '\r';
  }

  const Script script_;
  std::mutex mutex_;
  std::vector<std::string> requests_;
  std::atomic<int> connections_ = 0;
  Peer peer_{Transport::Tcp, {[this](Peer::End& end) {
               ++connections_;
               Peer::AnswersLines("PJLINK 0\r",
                                  [this](const std::string& line) { return Answer(line); })(end);
             }}};
};
