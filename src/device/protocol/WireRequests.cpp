#include "device/protocol/WireRequests.h"

#include <algorithm>
#include <iterator>

namespace AdvancedControl {

namespace {

constexpr std::size_t kMostUnanswered = 64;

}  // namespace

std::uint16_t WireRequests::NumberHello() {
  answered_ = ++sequence_;
  return sequence_;
}

void WireRequests::Announce(std::span<const PjtCommand> reads) {
  Forget();
  std::ranges::copy_if(reads, std::back_inserter(announced_), IsRead, &PjtCommand::operation);
}

void WireRequests::Forget() {
  announced_.clear();
  sent_.clear();
}

void WireRequests::ForgetOld(std::chrono::milliseconds time, SessionTime now) {
  if (now - lastReply_ > time) sent_.clear();
}

bool WireRequests::SkipTo(const PjtCommand& command) {
  const auto sent = std::ranges::find(sent_, command, &Sent::command);
  if (sent == sent_.end()) return false;
  sent_.erase(sent_.begin(), sent);
  return true;
}

void WireRequests::Send(const PjtCommand& command, std::string& bytes) {
  const auto announced = std::ranges::find(announced_, command);
  if (announced == announced_.end()) {
    // Before the rest of a burst, whose replies are still valid.
    sent_.insert(sent_.begin(), Make(command, bytes));
    return;
  }
  const auto count = std::min(std::ssize(announced_) - (announced - announced_.begin()),
                              static_cast<std::ptrdiff_t>(FreeSlots()));
  sent_.clear();
  sent_.reserve(static_cast<std::size_t>(count));
  for (auto next = announced; next != announced + count; ++next) {
    sent_.push_back(Make(*next, bytes));
  }
  announced_.erase(announced_.begin(), announced + count);
}

void WireRequests::Receive(const Wire::Frame& frame) {
  const auto* const reply = std::get_if<Wire::Reply>(&frame.message);
  if (!reply) return;
  const auto ahead = static_cast<std::uint16_t>(frame.sequence - answered_);
  if (ahead <= static_cast<std::uint16_t>(sequence_ - answered_)) answered_ = frame.sequence;
  const auto sent = std::ranges::find(sent_, frame.sequence, &Sent::sequence);
  if (sent != sent_.end() && !sent->reply) sent->reply = *reply;
}

std::optional<Wire::Reply> WireRequests::TakeReply(SessionTime now) {
  // unreachable: the request that is waited for is always there
  if (sent_.empty() || !sent_.front().reply) return std::nullopt;
  const auto reply = sent_.front().reply;
  sent_.erase(sent_.begin());
  lastReply_ = now;
  return reply;
}

std::size_t WireRequests::FreeSlots() const {
  const auto unanswered = static_cast<std::uint16_t>(sequence_ - answered_);
  return kMostUnanswered - std::min<std::size_t>(unanswered, kMostUnanswered);
}

WireRequests::Sent WireRequests::Make(const PjtCommand& command, std::string& bytes) {
  Wire::Append(bytes, {.sequence = ++sequence_, .message = Wire::MakeRequest(command)});
  return {command, sequence_, {}};
}

}  // namespace AdvancedControl
