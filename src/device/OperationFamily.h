#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "Namespace.h"

namespace AdvancedControl {

/// The form of an operation: its arguments and the meaning of its result. `kOperationForms`
/// describes each family.
enum class OperationFamily : std::uint8_t {
  Action,
  CheckedReset,
  PointReset,
  SilentAction,
  PointerGetter,
  IntSetter,
  ShortSetter,
  FlaggedSetter,
  SilentSetter,
  SilentFlaggedSetter,
  PointerStepper,
  SourceGetter,
  SourceStepper,
  SourceSetter,
  ShortSourceSetter,
  DirectGetter,
  PointGetter,
  ChannelStepper,
  GenericGetter,
  GenericSetter,
  GenericStepper,
};

/// The meaning of a command's argument.
enum class Argument : std::uint8_t {
  None,     ///< Unused; mostly 0.
  Address,  ///< The source, channel or point that the operation addresses.
  Value,    ///< The value to set; for a stepper, the value before the step.
  Flag,
};

/// What an operation does to the projector.
enum class Effect : std::uint8_t {
  Acts,   ///< Starts or resets something.
  Reads,  ///< Only reads.
  Sets,   ///< Sets a value that the command names.
  Steps,  ///< Changes a value by one step.
};

/// What an operation returns to its caller.
enum class Returns : std::uint8_t {
  Nothing,  ///< Even though the reply has a result.
  Result,   ///< Accepted or refused.
  Value,    ///< The result and, if accepted, the value read or the value after the step.
};

/// Which results are a success.
enum class Success : std::uint8_t { Zero, NonZero, One };

/// The properties of a family of operations.
struct OperationForm {
  OperationFamily family;
  Effect effect;
  Argument first;   ///< Of `PjtCommand`.
  Argument second;  ///< Of `PjtCommand`.
  Returns returns;
  Success success = Success::NonZero;
  bool isGeneric = false;  ///< A command code selects the setting.
};

inline constexpr auto kOperationForms = [] {
  using enum OperationFamily;
  using enum Effect;
  using enum Argument;
  return std::to_array<OperationForm>({
      {Action, Acts, None, None, Returns::Result, Success::Zero},
      {CheckedReset, Acts, None, None, Returns::Result},
      {PointReset, Acts, Address, None, Returns::Result},
      {SilentAction, Acts, None, None, Returns::Nothing},
      {PointerGetter, Reads, None, None, Returns::Value},
      {IntSetter, Sets, Value, None, Returns::Result},
      {ShortSetter, Sets, Value, None, Returns::Result},
      {FlaggedSetter, Sets, Value, Flag, Returns::Result},
      {SilentSetter, Sets, Value, None, Returns::Nothing},
      {SilentFlaggedSetter, Sets, Value, Flag, Returns::Nothing},
      {PointerStepper, Steps, Value, None, Returns::Value},
      {SourceGetter, Reads, Address, None, Returns::Value},
      {SourceStepper, Steps, Address, None, Returns::Value},
      {SourceSetter, Sets, Address, Value, Returns::Result},
      {ShortSourceSetter, Sets, Address, Value, Returns::Result},
      {DirectGetter, Reads, None, None, Returns::Value},
      {PointGetter, Reads, Address, None, Returns::Value},
      {ChannelStepper, Steps, Address, Value, Returns::Value},
      {GenericGetter, Reads, None, None, Returns::Value, Success::One, true},
      {GenericSetter, Sets, Value, None, Returns::Result, Success::One, true},
      {GenericStepper, Steps, None, None, Returns::Result, Success::One, true},
  });
}();

constexpr const OperationForm& FormOf(OperationFamily family) {
  return kOperationForms[static_cast<std::size_t>(family)];
}

static_assert(std::ranges::all_of(kOperationForms,
                                  [](const OperationForm& form) {
                                    return &form == &FormOf(form.family);
                                  }),
              "the forms stand in the order of their families");

}  // namespace AdvancedControl
