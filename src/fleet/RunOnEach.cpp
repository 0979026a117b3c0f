#include "fleet/RunOnEach.h"

#include <algorithm>

namespace AdvancedControl {

void RunOnEach(JobLoop& loop, const std::vector<VisitQueue::Address>& addresses, std::size_t atOnce,
               const std::function<void(std::size_t)>& work) {
  VisitQueue queue;
  for (std::size_t i = 0; i < addresses.size(); ++i) {
    queue.Add(static_cast<VisitQueue::Peer>(i), addresses[i]);
  }
  // If no address is free, those who work go on with the others there.
  loop.Run(std::min(atOnce, addresses.size()), [&](std::size_t) {
    while (const auto next = queue.Next()) {
      work(*next);
      queue.Leave(*next);
    }
  });
}

}  // namespace AdvancedControl
