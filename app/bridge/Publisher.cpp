#include "app/bridge/Publisher.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array kNames{"state", "discovery"};

}  // namespace

Publisher::Publisher(std::size_t projectors, Make make, Send send)
    : make_(std::move(make)),
      send_(std::move(send)),
      messages_{DueMessages(projectors), DueMessages(projectors)} {}

void Publisher::Renew(Kind kind, std::size_t projector) {
  if (Of(kind).Renew(projector)) Pump();
}

void Publisher::RenewAll(Kind kind) {
  for (std::size_t i = 0; i < Of(kind).Count(); ++i) Renew(kind, i);
}

void Publisher::Forget(Kind kind) {
  Of(kind).Forget();
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
  // The first answer comes to the front last.
  for (auto entry = underWay_.rbegin(); entry != underWay_.rend(); ++entry) {
    Pending& lost = entry->second;
    if (lost.kind) {
      Of(*lost.kind).Lose(lost.projector);
    } else {
      answers_.push_front(std::move(lost.answer));
    }
  }
  underWay_.clear();
}

void Publisher::Sent(int number) {
  const auto sent = underWay_.extract(number);
  if (sent.empty()) return;
  const std::optional<Kind> kind = sent.mapped().kind;
  ++counts_[kind ? kNames.at(static_cast<std::size_t>(*kind)) : "answer"];
  Pump();
}

bool Publisher::IsIdle() const {
  return underWay_.empty() && answers_.empty() &&
         std::ranges::all_of(messages_, &DueMessages::IsEmpty);
}

void Publisher::Pump() {
  while (isOpen_ && underWay_.size() < kUnderWay) {
    if (!answers_.empty()) {
      if (!SendAnswer()) return;
    } else if (!SendNext(Of(Kind::State).IsEmpty() ? Kind::Discovery : Kind::State)) {
      return;
    }
  }
}

/// Whether there was one, and it could be sent or did not have to.
bool Publisher::SendNext(Kind kind) {
  DueMessages& messages = Of(kind);
  if (messages.IsEmpty()) return false;
  const BrokerMessage message = make_(kind, messages.First());
  if (message.topic.isEmpty() || messages.IsSent(message.payload)) {
    messages.Pop();
    return true;
  }
  const auto number = send_(message);
  if (!number) return false;
  underWay_[*number] = {.kind = kind, .projector = messages.First()};
  messages.Pop(message.payload);
  return true;
}

/// Whether it could be sent.
bool Publisher::SendAnswer() {
  const auto number = send_(answers_.front());
  if (!number) return false;
  underWay_[*number] = {.answer = std::move(answers_.front())};
  answers_.pop_front();
  return true;
}
