#include "app/bridge/Publisher.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/bridge/Topics.h"

namespace {

constexpr std::array kNames{"state", "discovery"};

std::uint64_t HashOf(const QByteArray& payload) {
  return StableHash({payload.data(), static_cast<std::size_t>(payload.size())});
}

}  // namespace

Publisher::Publisher(std::size_t projectors, Make make, Send send)
    : make_(std::move(make)), send_(std::move(send)) {
  for (Queue& queue : queues_) {
    queue.isDue.resize(projectors);
    queue.sent.resize(projectors);
  }
}

void Publisher::Renew(Kind kind, std::size_t projector) {
  Queue& queue = QueueOf(kind);
  if (queue.isDue[projector]) return;
  queue.isDue[projector] = true;
  queue.due.push_back(projector);
  Pump();
}

void Publisher::RenewAll(Kind kind) {
  for (std::size_t i = 0; i < QueueOf(kind).isDue.size(); ++i) Renew(kind, i);
}

void Publisher::Forget(Kind kind) {
  std::ranges::fill(QueueOf(kind).sent, std::nullopt);
  RenewAll(kind);
}

void Publisher::Answer(BrokerMessage message) {
  if (answers_.size() == kMostAnswers) answers_.pop_front();
  answers_.push_back(std::move(message));
  Pump();
}

void Publisher::Start() {
  isOpen_ = true;
  Pump();
}

void Publisher::Restart() {
  isOpen_ = false;
  underWay_.clear();
}

void Publisher::Sent(int number) {
  if (underWay_.erase(number) > 0) Pump();
}

bool Publisher::HasDue() const {
  return std::ranges::any_of(queues_, [](const Queue& queue) { return !queue.due.empty(); });
}

void Publisher::Pump() {
  while (isOpen_ && underWay_.size() < kUnderWay) {
    if (!answers_.empty()) {
      if (!SendMessage(answers_.front(), "answer")) return;
      answers_.pop_front();
    } else if (!SendNext(QueueOf(Kind::State).due.empty() ? Kind::Discovery : Kind::State)) {
      return;
    }
  }
}

/// Whether there was one, and it could be sent or did not have to.
bool Publisher::SendNext(Kind kind) {
  Queue& queue = QueueOf(kind);
  if (queue.due.empty()) return false;
  const std::size_t projector = queue.due.front();
  const BrokerMessage message = make_(kind, projector);
  const std::uint64_t hash = HashOf(message.payload);
  const bool isNew = !message.topic.isEmpty() && queue.sent[projector] != hash;
  if (isNew && !SendMessage(message, kNames.at(static_cast<std::size_t>(kind)))) return false;
  if (isNew) queue.sent[projector] = hash;
  queue.due.pop_front();
  queue.isDue[projector] = false;
  return true;
}

bool Publisher::SendMessage(const BrokerMessage& message, const char* kind) {
  const auto number = send_(message);
  if (!number) return false;
  underWay_.insert(*number);
  ++counts_[kind];
  return true;
}
