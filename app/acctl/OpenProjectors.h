#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "app/acctl/ProjectorLock.h"
#include "app/profiles/ProjectorAccess.h"
#include "fleet/AddressHold.h"

/// An open projector, and what keeps others away from it. The connection is closed before they may
/// connect.
struct OpenProjector {
  std::optional<AddressHold> hold{};  ///< Empty if it is simulated here.
  std::optional<ProjectorLock> lock{};
  std::optional<ProjectorAccess> access{};
};

/// Keeps projectors open, by their numbers, between the check of a command and its run, so that the
/// run needs no second connection. Any thread may call it.
///
/// Call `CloseAll` before waiting for another run of the program: two runs that wait for each other
/// while each holds a projector that the other needs would never end.
class OpenProjectors {
 public:
  /// Keeps a projector open; closes it if there are too many, or after `CloseAll`.
  void Keep(int number, std::unique_ptr<OpenProjector> projector);
  /// The projector that was kept, or null.
  std::unique_ptr<OpenProjector> Take(int number);
  /// Renumbers the projectors with these numbers from 0 on, in this order, and closes all others.
  void Renumber(const std::vector<int>& numbers);
  void CloseAll();

 private:
  /// Other runs wait for each of them.
  static constexpr std::size_t kMost = 64;

  std::mutex mutex_;
  std::map<int, std::unique_ptr<OpenProjector>> kept_;
  bool keepsNone_ = false;
};
