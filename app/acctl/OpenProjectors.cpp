#include "app/acctl/OpenProjectors.h"

#include <utility>

void OpenProjectors::Keep(int number, std::unique_ptr<OpenProjector> projector) {
  const std::lock_guard lock(mutex_);
  if (!keepsNone_ && kept_.size() < kMost) kept_[number] = std::move(projector);
}

std::unique_ptr<OpenProjector> OpenProjectors::Take(int number) {
  const std::lock_guard lock(mutex_);
  auto kept = kept_.extract(number);
  return kept ? std::move(kept.mapped()) : nullptr;
}

void OpenProjectors::Renumber(const std::vector<int>& numbers) {
  const std::lock_guard lock(mutex_);
  std::map<int, std::unique_ptr<OpenProjector>> renumbered;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (auto kept = kept_.extract(numbers[i])) {
      renumbered[static_cast<int>(i)] = std::move(kept.mapped());
    }
  }
  kept_ = std::move(renumbered);
}

void OpenProjectors::CloseAll() {
  const std::lock_guard lock(mutex_);
  keepsNone_ = true;
  kept_.clear();
}
