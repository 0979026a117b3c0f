#pragma once

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "device/protocol/PjLinkSession.h"

/// A small PJLink projector of its own, written from the standard alone, that behaves as badly as
/// it is told to. It lives in the time that it is given.
class BadProjector {
 public:
  using Milliseconds = std::chrono::milliseconds;

  std::map<std::string, std::string> states{
      {"POWR", "1"}, {"INPT", "31"}, {"AVMT", "30"}, {"FREZ", "0"}};
  std::map<std::string, std::string> facts{
      {"CLSS", "2"},      {"INST", "31 32 5A"}, {"LAMP", "1200 1"}, {"FILT", "80"},
      {"ERST", "000000"}, {"INNM31", "HDMI"},   {"INNM32", "HDMI"}, {"INNM5A", "Office"}};
  std::string greeting = "PJLINK 0\r";
  std::string before{}, after = "\r";              ///< Around each reply.
  char replyClass = 0;                             ///< Of each reply; 0 for that of its request.
  std::optional<Milliseconds> closesAfterReply{};  ///< So long after each.
  bool dropsUnanswered = false;           ///< Closes the connection instead of a lost reply.
  Milliseconds answers{10};               ///< For each reply.
  Milliseconds follows{0};                ///< A state comes so long after its OK.
  Milliseconds busyFor{0};                ///< From the first request on it answers ERR3.
  Milliseconds gap{0};                    ///< Nobody is let in so long after a connection.
  std::map<std::string, int> loses{};     ///< So many replies to a command get lost.
  std::map<std::string, int> distorts{};  ///< So many are garbled.
  std::map<std::string, int> refuses{};   ///< So many are ERR3.

  std::vector<std::string> heard{};  ///< Requests, without what is the same in all.
  int connections = 0;
  int attempts = 0;  ///< To connect.

  bool Connect(PjLinkTime now) {
    ++attempts;
    if (now < openAgain_) return false;
    ++connections;
    return isOpen_ = true;
  }
  bool IsOpen() const { return isOpen_; }
  void Close(PjLinkTime now) {
    if (std::exchange(isOpen_, false)) openAgain_ = now + gap;
  }

  /// What comes of the bytes of a request; nothing where no reply comes.
  std::optional<std::string> Receive(std::string_view bytes, PjLinkTime now) {
    const std::string request(bytes.substr(0, bytes.find('\r')));
    const std::string name = request.substr(2, 4);
    const std::string parameter = request.substr(7);
    heard.push_back(name + (parameter == "?" ? "" : ' ' + parameter));
    if (!begun_) begun_ = now;
    const std::string result = now < *begun_ + busyFor && name != "POWR" ? "ERR3"
                               : Counts(refuses, name)                   ? "ERR3"
                                                       : Perform(name, parameter, now);
    if (Counts(loses, name)) {
      if (dropsUnanswered) Close(now);
      return std::nullopt;
    }
    if (closesAfterReply == Milliseconds(0)) Close(now);
    if (Counts(distorts, name)) return "?%&!\r";
    return before + '%' + (replyClass == 0 ? request[1] : replyClass) + name + '=' + result + after;
  }

  /// All requests so far, in one line.
  std::string TakeHeard() {
    std::string text;
    for (const std::string& request : std::exchange(heard, {})) {
      text += (text.empty() ? "" : ", ") + request;
    }
    return text;
  }

 private:
  static bool Counts(std::map<std::string, int>& counts, const std::string& name) {
    const auto found = counts.find(name);
    return found != counts.end() && found->second-- > 0;
  }

  std::string Perform(const std::string& name, const std::string& parameter, PjLinkTime now) {
    for (auto& [state, change] : coming_) {
      if (now >= change.first) states[state] = change.second;
    }
    std::erase_if(coming_, [&](const auto& change) { return now >= change.second.first; });
    if (name == "SVOL") return "OK";
    const auto state = states.find(name);
    if (parameter.starts_with('?')) {
      if (state != states.end()) return state->second;
      const auto fact = facts.find(name + parameter.substr(1));
      return fact == facts.end() ? "ERR1" : fact->second;
    }
    if (state == states.end()) return "ERR1";
    const bool isUnmuted = name == "AVMT" && parameter.ends_with('0');
    coming_[name] = {now + follows, isUnmuted ? "30" : parameter};
    return "OK";
  }

  bool isOpen_ = false;
  PjLinkTime openAgain_{};
  std::optional<PjLinkTime> begun_;
  std::map<std::string, std::pair<PjLinkTime, std::string>> coming_;
};

/// Drives a session with that projector in a time of its own, which goes on only while it waits.
class SteppedSession {
 public:
  static constexpr PjLinkLimits kLimits{.connect = std::chrono::seconds(2),
                                        .answer = std::chrono::seconds(2)};

  explicit SteppedSession(PjLinkLimits::Time answer = kLimits.answer)
      : session("", {.connect = kLimits.connect, .answer = answer}) {}

  PjtReply Do(const PjtCommand& command) {
    session.Begin(command, now);
    Run();
    return session.Reply();
  }
  PjLinkTold Ask(const PjLinkQuestion& question) {
    session.Begin(question, now);
    Run();
    return session.Told();
  }

  BadProjector projector;
  PjLinkSession session;
  PjLinkTime now{std::chrono::hours(1)};

 private:
  void Run() {
    for (auto step = session.Next(now); step.kind != PjLinkStep::Kind::Finished;
         step = session.Next(now)) {
      Do(step);
    }
  }

  void Do(const PjLinkStep& step) {
    auto& connection = session.Connection();
    switch (step.kind) {
      case PjLinkStep::Kind::Connect:
        if (projector.Connect(now)) {
          connection.Connected();
          coming_ = projector.greeting;
          comesAt_ = now;
        } else {
          connection.NotConnected(ConnectionState::NotReachable, now);
        }
        break;
      case PjLinkStep::Kind::Send: {
        if (closesAt_) break;  // it reads nothing more
        const auto answer = projector.Receive(step.bytes, now);
        coming_ = answer.value_or("");
        comesAt_ = now + projector.answers;
        if (projector.closesAfterReply > BadProjector::Milliseconds(0)) {
          closesAt_ = comesAt_ + *projector.closesAfterReply;
        }
        if (!answer && !projector.IsOpen()) connection.Closed(now);
        break;
      }
      case PjLinkStep::Kind::Wait:
        if (coming_.empty() && closesAt_ && closesAt_ <= step.until) {
          now = *std::exchange(closesAt_, std::nullopt);
          projector.Close(now);
          connection.Closed(now);
          break;
        }
        if (coming_.empty() || comesAt_ > step.until) {
          now = step.until;
          break;
        }
        now = std::max(now, comesAt_);
        connection.Received(std::exchange(coming_, {}), now);
        if (!projector.IsOpen()) connection.Closed(now);
        break;
      default:
        projector.Close(now);
        coming_.clear();
        closesAt_.reset();
    }
  }

  std::string coming_;
  PjLinkTime comesAt_{};
  std::optional<PjLinkTime> closesAt_;
};
