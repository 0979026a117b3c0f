#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "app/acctl/ProjectorLock.h"
#include "app/profiles/ProjectorAccess.h"

/// A projector that a command works with, and the lock on it if there is one. Closing it releases
/// the connection before the lock.
struct OpenProjector {
  std::optional<ProjectorLock> lock;
  std::optional<ProjectorAccess> access{};
};

/// Projectors that stay open between the check of a command and its run, by their numbers, so that
/// the run needs no second connection. Any thread may call it.
///
/// Whoever has to wait for another run must call `CloseAll` first: two runs that wait for each
/// other while each keeps what the other needs would get nowhere.
class OpenProjectors {
 public:
  /// Keeps a projector open, or closes it if there are too many, or if this run has waited.
  void Keep(int number, std::unique_ptr<OpenProjector> projector);
  /// The projector that was kept, or null.
  std::unique_ptr<OpenProjector> Take(int number);
  void CloseAll();

 private:
  /// Each needs two file descriptors, and other runs wait for it.
  static constexpr std::size_t kMost = 64;

  std::mutex mutex_;
  std::map<int, std::unique_ptr<OpenProjector>> kept_;
  bool keepsNone_ = false;
};
