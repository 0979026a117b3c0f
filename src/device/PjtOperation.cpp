#include "device/PjtOperation.h"

#include <algorithm>
#include <array>

namespace AdvancedControl {

namespace {

struct Description {
  std::string_view name;
  OperationFamily family;
  std::uint16_t number;
};

constexpr std::array<Description, kOperationCount> kDescriptions{{
#define PJT_OPERATION(name, family, number) {#name, OperationFamily::family, number},
#include "device/PjtOperations.def"
}};

const Description& Describe(PjtOperation operation) {
  return kDescriptions[static_cast<std::size_t>(operation)];
}

std::optional<PjtOperation> Find(const auto& key, auto member) {
  const auto* found = std::ranges::find(kDescriptions, key, member);
  if (found == kDescriptions.end()) return std::nullopt;
  return static_cast<PjtOperation>(found - kDescriptions.begin());
}

}  // namespace

std::string_view OperationName(PjtOperation operation) { return Describe(operation).name; }

std::optional<PjtOperation> OperationByName(std::string_view name) {
  return Find(name, &Description::name);
}

std::uint16_t OperationNumber(PjtOperation operation) { return Describe(operation).number; }

std::optional<PjtOperation> OperationByNumber(std::uint16_t number) {
  return Find(number, &Description::number);
}

OperationFamily FamilyOf(PjtOperation operation) { return Describe(operation).family; }

bool IsSuccess(PjtOperation operation, int result) {
  switch (FormOf(operation).success) {
    case Success::Zero:
      return result == 0;
    case Success::One:
      return result == 1;
    case Success::NonZero:
      break;
  }
  return result != 0;
}

int AcceptedResult(PjtOperation operation) {
  return FormOf(operation).success == Success::Zero ? 0 : 1;
}

int RefusedResult(PjtOperation operation) {
  return FormOf(operation).success == Success::Zero ? -1 : 0;
}

bool IsRead(PjtOperation operation) { return FormOf(operation).effect == Effect::Reads; }

bool IsAbsolute(PjtOperation operation) {
  return FormOf(operation).effect != Effect::Steps && operation != PjtOperation::ExecAutoAdjust &&
         operation != PjtOperation::ExecAutoKeyStone;
}

}  // namespace AdvancedControl
