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

/// What one number of a command stands for.
enum class Argument : std::uint8_t {
  None,     ///< Nothing; mostly 0.
  Address,  ///< The source, channel or point that the operation addresses.
  Value,    ///< The value to set; for a stepper, the value before the step.
  Flag,
};

/// What an operation does to the projector.
enum class Effect : std::uint8_t {
  Acts,   ///< Starts or resets something.
  Reads,  ///< Nothing.
  Sets,   ///< Sets a value that the command names.
  Steps,  ///< Changes a value by one step.
};

/// What the caller of an operation gets from a reply.
enum class Tells : std::uint8_t {
  Nothing,  ///< Though the reply carries a result.
  Result,   ///< Accepted or refused.
  Value,    ///< Also, if accepted, the value read or the one after the step.
};

/// Which results are a success.
enum class Success : std::uint8_t { Zero, NonZero, One };

/// The properties of a family of operations.
struct OperationForm {
  OperationFamily family;
  Effect effect;
  Argument first;   ///< Of `PjtCommand`.
  Argument second;  ///< Of `PjtCommand`.
  Tells tells;
  Success success = Success::NonZero;
  bool isGeneric = false;  ///< A command code selects the setting.
};

inline constexpr auto kOperationForms = [] {
  using enum OperationFamily;
  using enum Effect;
  using enum Argument;
  return std::to_array<OperationForm>({
      {Action, Acts, None, None, Tells::Result, Success::Zero},
      {CheckedReset, Acts, None, None, Tells::Result},
      {PointReset, Acts, Address, None, Tells::Result},
      {SilentAction, Acts, None, None, Tells::Nothing},
      {PointerGetter, Reads, None, None, Tells::Value},
      {IntSetter, Sets, Value, None, Tells::Result},
      {ShortSetter, Sets, Value, None, Tells::Result},
      {FlaggedSetter, Sets, Value, Flag, Tells::Result},
      {SilentSetter, Sets, Value, None, Tells::Nothing},
      {SilentFlaggedSetter, Sets, Value, Flag, Tells::Nothing},
      {PointerStepper, Steps, Value, None, Tells::Value},
      {SourceGetter, Reads, Address, None, Tells::Value},
      {SourceStepper, Steps, Address, None, Tells::Value},
      {SourceSetter, Sets, Address, Value, Tells::Result},
      {ShortSourceSetter, Sets, Address, Value, Tells::Result},
      {DirectGetter, Reads, None, None, Tells::Value},
      {PointGetter, Reads, Address, None, Tells::Value},
      {ChannelStepper, Steps, Address, Value, Tells::Value},
      {GenericGetter, Reads, None, None, Tells::Value, Success::One, true},
      {GenericSetter, Sets, Value, None, Tells::Result, Success::One, true},
      {GenericStepper, Steps, None, None, Tells::Result, Success::One, true},
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
