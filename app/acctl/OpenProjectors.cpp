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

void OpenProjectors::CloseAll() {
  const std::lock_guard lock(mutex_);
  keepsNone_ = true;
  kept_.clear();
}
