#pragma once

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "device/protocol/PjLinkSession.h"

/// A small PJLink projector, written from the standard independently of the library, with
/// configurable faults. It runs in simulated time.
class BadProjector {
 public:
  using Milliseconds = std::chrono::milliseconds;

  std::map<std::string, std::string> states{
      {"POWR", "1"}, {"INPT", "31"}, {"AVMT", "30"}, {"FREZ", "0"}};
  std::map<std::string, std::string> facts{
      {"CLSS", "2"},      {"INST", "31 32 5A"}, {"LAMP", "1200 1"}, {"FILT", "80"},
      {"ERST", "000000"}, {"INNM31", "HDMI"},   {"INNM32", "HDMI"}, {"INNM5A", "Office"}};
  std::string greeting = "PJLINK 0\r";
  std::string before{}, after = "\r";  ///< Written before and after each reply.
  char replyClass = 0;                 ///< Class in each reply; 0 for that of its request.
  std::optional<Milliseconds> closesAfterReply{};  ///< So long after each.
  bool dropsUnanswered = false;  ///< Closes the connection instead of losing a reply silently.
  Milliseconds answers{10};      ///< Time for each reply.
  Milliseconds follows{0};       ///< Time until an accepted change takes effect.
  Milliseconds busyFor{0};       ///< Answers ERR3 for this time, from the first request on.
  Milliseconds gap{0};           ///< Refuses connections for this time after each one.
  std::map<std::string, int> loses{};     ///< Number of replies to a command that get lost.
  std::map<std::string, int> distorts{};  ///< Number of replies that are garbled.
  std::map<std::string, int> refuses{};   ///< Number of replies that are ERR3.

  /// Closes after each reply, and then refuses connections for this time.
  void CloseEachTime(Milliseconds pause) { closesAfterReply = Milliseconds(0), gap = pause; }

  std::vector<std::string> requests{};  ///< Requests received, without class and "?".
  int connections = 0;
  int attempts = 0;  ///< Attempts to connect.

  bool Connect(PjLinkTime now) {
    ++attempts;
    if (now < openAgain_) return false;
    EXPECT_FALSE(isOpen_) << "the last connection has to be closed first";
    ++connections;
    return isOpen_ = true;
  }
  bool IsOpen() const { return isOpen_; }
  void Close(PjLinkTime now) {
    if (std::exchange(isOpen_, false)) openAgain_ = now + gap;
  }

  /// The reply to the bytes of a request; nothing if there is none.
  std::optional<std::string> Receive(std::string_view bytes, PjLinkTime now) {
    const std::string request(bytes.substr(0, bytes.find('\r')));
    const std::string name = request.substr(2, 4);
    const std::string parameter = request.substr(7);
    requests.push_back(name + (parameter == "?" ? "" : ' ' + parameter));
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

  /// Returns and clears the requests so far, on one line.
  std::string TakeRequests() {
    std::string text;
    for (const std::string& request : std::exchange(requests, {})) {
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

/// Drives a session with the projector in simulated time, which advances only while the session
/// waits.
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
  PjLinkResult Ask(const PjLinkQuestion& question) {
    session.Begin(question, now);
    Run();
    return session.Result();
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
    using enum PjLinkStep::Kind;
    auto& connection = session.Connection();
    if (step.kind == Connect) {
      EXPECT_EQ(session.State(), ConnectionState::Connecting);
      if (!projector.Connect(now)) {
        return connection.NotConnected(ConnectionState::NotReachable, now);
      }
      connection.Connected();
      coming_ = projector.greeting;
      comesAt_ = now;
    } else if (step.kind == Send) {
      if (closesAt_) return;  // it reads nothing more
      const auto answer = projector.Receive(step.bytes, now);
      coming_ = answer.value_or("");
      comesAt_ = now + projector.answers;
      if (projector.closesAfterReply > BadProjector::Milliseconds(0)) {
        closesAt_ = comesAt_ + *projector.closesAfterReply;
      }
      if (!answer && !projector.IsOpen()) connection.Closed(now);
    } else if (step.kind != Wait) {
      projector.Close(now);
      coming_.clear();
      closesAt_.reset();
    } else if (coming_.empty() && closesAt_ && closesAt_ <= step.until) {
      now = *std::exchange(closesAt_, std::nullopt);
      projector.Close(now);
      connection.Closed(now);
    } else if (coming_.empty() || comesAt_ > step.until) {
      now = step.until;
    } else {
      now = std::max(now, comesAt_);
      connection.Received(std::exchange(coming_, {}), now);
      if (!projector.IsOpen()) connection.Closed(now);
    }
  }

  std::string coming_;
  PjLinkTime comesAt_{};
  std::optional<PjLinkTime> closesAt_;
};
