#include "fleet/AddressHold.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace AdvancedControl {

struct AddressHold::Lines {
  void TellObservers(const Address& address, bool isHeld) const {
    for (const Observer* const observer : observers) observer->onUse_(address, isHeld);
  }

  std::mutex mutex;
  std::condition_variable changed;
  // Protected by the mutex.
  std::map<Address, std::vector<const AddressHold*>> lines;  ///< The first of each is the holder.
  std::vector<const Observer*> observers;
};

// Never destroyed: the thread of a channel may outlive `main`.
AddressHold::Lines& AddressHold::All() {
  static auto* const all = new Lines;
  return *all;
}

AddressHold::AddressHold(Address address, Turn turn, std::function<void()> onHeld)
    : address_(std::move(address)), turn_(turn), onHeld_(std::move(onHeld)) {
  Lines& all = All();
  const std::lock_guard lock(all.mutex);
  auto& line = all.lines[address_];
  if (line.empty()) {
    all.TellObservers(address_, true);
    line.push_back(this);
    onHeld_();
    return;
  }
  const auto isLast = [](const AddressHold* other) { return other->turn_ == Turn::Last; };
  const auto place =
      turn_ == Turn::Next ? std::find_if(line.begin() + 1, line.end(), isLast) : line.end();
  line.insert(place, this);
}

AddressHold::~AddressHold() {
  Lines& all = All();
  const std::lock_guard lock(all.mutex);
  auto& line = all.lines.at(address_);
  const bool wasHeld = line.front() == this;
  std::erase(line, this);
  if (line.empty()) {
    all.lines.erase(address_);
    all.TellObservers(address_, false);
  } else if (wasHeld) {
    line.front()->onHeld_();
    all.changed.notify_all();
  }
}

std::size_t AddressHold::LengthOfLine(const Address& address) {
  Lines& all = All();
  const std::lock_guard lock(all.mutex);
  const auto line = all.lines.find(address);
  return line == all.lines.end() ? 0 : line->second.size();
}

bool AddressHold::IsHeld() const {
  Lines& all = All();
  const std::lock_guard lock(all.mutex);
  return all.lines.at(address_).front() == this;
}

bool AddressHold::IsWanted() const { return LengthOfLine(address_) > 1; }

bool AddressHold::WaitFor(std::chrono::milliseconds time) const {
  Lines& all = All();
  std::unique_lock lock(all.mutex);
  return all.changed.wait_for(lock, time, [&] { return all.lines.at(address_).front() == this; });
}

AddressHold::Observer::Observer(std::function<void(const Address&, bool isHeld)> onUse)
    : onUse_(std::move(onUse)) {
  Lines& all = All();
  const std::lock_guard lock(all.mutex);
  all.observers.push_back(this);
  for (const auto& [address, line] : all.lines) onUse_(address, true);
}

AddressHold::Observer::~Observer() {
  Lines& all = All();
  const std::lock_guard lock(all.mutex);
  std::erase(all.observers, this);
}

}  // namespace AdvancedControl
