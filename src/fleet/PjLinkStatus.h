#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkMapping.h"
#include "fleet/LiveState.h"
#include "fleet/StatusItems.h"

namespace AdvancedControl {

/// The status of a projector as PJLink reports it.
namespace PjLinkStatus {

/// A question, and the items that its answer contains.
struct Question {
  const PjLinkMapping* mapping = nullptr;
  std::vector<StatusItem> items{};
};

/// The power state's is the first.
std::span<const Question> Questions();
/// The question of a command, in any case; null if there is none.
const Question* FindQuestion(std::string_view command);

/// Updates the state with the answer to a question. Items that the answer does not contain become
/// unknown. `model` may be null; `inputs` are those with known names.
void Take(LiveState& state, const Question& question, std::string_view answer,
          const ModelData* model, std::span<const PjLinkInput> inputs);

}  // namespace PjLinkStatus

}  // namespace AdvancedControl
