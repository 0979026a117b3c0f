#include "app/bridge/DueMessages.h"

#include <algorithm>

#include "app/bridge/Topics.h"

namespace {

std::uint64_t HashOf(const QByteArray& payload) {
  return StableHash({payload.data(), static_cast<std::size_t>(payload.size())});
}

}  // namespace

bool DueMessages::Renew(std::size_t projector) {
  if (isDue_[projector]) return false;
  isDue_[projector] = true;
  due_.push_back(projector);
  return true;
}

void DueMessages::Forget() { std::ranges::fill(sent_, std::nullopt); }

void DueMessages::Lose(std::size_t projector) {
  sent_[projector].reset();
  Renew(projector);
}

bool DueMessages::IsSent(const QByteArray& payload) const {
  return sent_[First()] == HashOf(payload);
}

void DueMessages::Pop() {
  isDue_[First()] = false;
  due_.pop_front();
}

void DueMessages::Pop(const QByteArray& payload) {
  sent_[First()] = HashOf(payload);
  Pop();
}
