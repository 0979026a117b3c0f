#include "device/PjtOperation.h"

#include <algorithm>
#include <array>

namespace {

struct Description {
  std::string_view name;
  OperationFamily family;
};

constexpr std::array<Description, kOperationCount> kDescriptions{{
#define PJT_OPERATION(name, family) {#name, OperationFamily::family},
#include "device/PjtOperations.def"
}};

const Description& Describe(PjtOperation operation) {
  return kDescriptions[static_cast<std::size_t>(operation)];
}

}  // namespace

std::string_view OperationName(PjtOperation operation) { return Describe(operation).name; }

std::optional<PjtOperation> OperationByName(std::string_view name) {
  const auto* found = std::ranges::find(kDescriptions, name, &Description::name);
  if (found == kDescriptions.end()) return std::nullopt;
  return static_cast<PjtOperation>(found - kDescriptions.begin());
}

OperationFamily FamilyOf(PjtOperation operation) { return Describe(operation).family; }

bool IsSuccess(PjtOperation operation, int result) {
  switch (FamilyOf(operation)) {
    case OperationFamily::Action:
      return result == 0;
    case OperationFamily::Generic:
      return result == 1;
    default:
      return result != 0;
  }
}

int AcceptedResult(PjtOperation operation) {
  return FamilyOf(operation) == OperationFamily::Action ? 0 : 1;
}

int RefusedResult(PjtOperation operation) {
  return FamilyOf(operation) == OperationFamily::Action ? -1 : 0;
}

bool IsRead(PjtOperation operation) {
  switch (FamilyOf(operation)) {
    case OperationFamily::PointerGetter:
    case OperationFamily::SourceGetter:
    case OperationFamily::DirectGetter:
    case OperationFamily::PointGetter:
      return true;
    default:
      return operation == PjtOperation::Get;
  }
}
