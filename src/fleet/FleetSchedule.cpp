#include "fleet/FleetSchedule.h"

namespace AdvancedControl {

void FleetSchedule::Reset(Peer peer) {
  if (peer >= plans_.size()) plans_.resize(peer + 1);
  plans_[peer] = {};
}

}  // namespace AdvancedControl
