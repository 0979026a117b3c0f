#include "fleet/AddressHolds.h"

#include <algorithm>
#include <utility>

namespace AdvancedControl {

void AddressHolds::Detach() {
  const std::lock_guard lock(mutex_);
  onUse_ = [](const Address&, bool) {};
}

void AddressHolds::Add(Hold& hold) {
  const std::lock_guard lock(mutex_);
  const auto [at, isNew] = lines_.try_emplace(hold.address_);
  Line& line = at->second;
  if (isNew) {
    onUse_(hold.address_, true);
    line.push_back(&hold);
    hold.TakeTurn();
    return;
  }
  const auto isLast = [](const Hold* other) { return other->turn_ == Turn::Last; };
  const auto place =
      hold.turn_ == Turn::Next ? std::find_if(line.begin() + 1, line.end(), isLast) : line.end();
  line.insert(place, &hold);
}

void AddressHolds::Remove(Hold& hold) {
  const std::lock_guard lock(mutex_);
  const auto at = lines_.find(hold.address_);
  Line& line = at->second;
  std::erase(line, &hold);
  if (line.empty()) {
    lines_.erase(at);
    onUse_(hold.address_, false);
  } else if (hold.isHeld_) {
    line.front()->TakeTurn();
    changed_.notify_all();
  }
}

AddressHolds::Hold::Hold(std::shared_ptr<AddressHolds> holds, Address address, Turn turn,
                         std::function<void()> onHeld)
    : holds_(std::move(holds)),
      address_(std::move(address)),
      turn_(turn),
      onHeld_(std::move(onHeld)) {
  holds_->Add(*this);
}

AddressHolds::Hold::~Hold() { holds_->Remove(*this); }

bool AddressHolds::Hold::IsHeld() const {
  const std::lock_guard lock(holds_->mutex_);
  return isHeld_;
}

bool AddressHolds::Hold::IsWanted() const {
  const std::lock_guard lock(holds_->mutex_);
  return holds_->lines_.at(address_).size() > 1;
}

bool AddressHolds::Hold::WaitFor(std::chrono::milliseconds time) const {
  std::unique_lock lock(holds_->mutex_);
  return holds_->changed_.wait_for(lock, time, [this] { return isHeld_; });
}

void AddressHolds::Hold::TakeTurn() {
  isHeld_ = true;
  onHeld_();
}

}  // namespace AdvancedControl
