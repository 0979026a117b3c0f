#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "AdvancedControlExport.h"

/// Every operation that the projector understands, named as `CPjtInterface` names it.
enum class PjtOperation {
#define PJT_OPERATION(name, family, number) name,
#include "device/PjtOperations.def"
};

/// The form of an operation: its arguments and what its result means.
/// The command of each form carries its arguments as said here.
enum class OperationFamily {
  Action,               ///< No arguments; 0 is success.
  CheckedReset,         ///< No arguments; nonzero is success.
  PointReset,           ///< first = point; nonzero is success.
  SilentAction,         ///< No arguments, no result for the caller.
  PointerGetter,        ///< No arguments; nonzero is success.
  IntSetter,            ///< first = value; nonzero is success.
  ShortSetter,          ///< first = value; nonzero is success.
  FlaggedSetter,        ///< first = value, second = flag; nonzero is success.
  SilentSetter,         ///< first = value; no result for the caller.
  SilentFlaggedSetter,  ///< first = value, second = flag; no result for the caller.
  PointerStepper,       ///< first = the caller's value; nonzero is success.
  SourceGetter,         ///< first = source; nonzero is success.
  SourceStepper,        ///< first = source; nonzero is success.
  SourceSetter,         ///< first = source, second = value; nonzero is success.
  ShortSourceSetter,    ///< first = source, second = value; nonzero is success.
  DirectGetter,         ///< No arguments; the caller gets the value alone.
  PointGetter,          ///< first = point; the caller gets the value alone.
  ChannelStepper,       ///< first = channel, second = shown value; the caller gets the value alone.
  Generic,              ///< code, first = value of `Set`, else the argument; exactly 1 is success.
};

/// Number of operations; their enumerators run from 0 to `kOperationCount` − 1.
inline constexpr std::size_t kOperationCount = 0
#define PJT_OPERATION(name, family, number) +1
#include "device/PjtOperations.def"
    ;

/// The operation's name, as its member of `CPjtInterface` is called.
ADVANCED_CONTROL_EXPORT std::string_view OperationName(PjtOperation operation);

/// The operation of that name, or nothing.
ADVANCED_CONTROL_EXPORT std::optional<PjtOperation> OperationByName(std::string_view name);

/// The operation's number on the wire, 1 or above, and the operation of that number, or nothing.
ADVANCED_CONTROL_EXPORT std::uint16_t OperationNumber(PjtOperation operation);
ADVANCED_CONTROL_EXPORT std::optional<PjtOperation> OperationByNumber(std::uint16_t number);

ADVANCED_CONTROL_EXPORT OperationFamily FamilyOf(PjtOperation operation);

/// Whether `result`, as a reply carries it, says that the projector did what was asked. Families
/// whose caller gets no result still carry one in the reply: nonzero is success.
ADVANCED_CONTROL_EXPORT bool IsSuccess(PjtOperation operation, int result);

/// A result that says success, and one that says refusal, by the operation's family.
ADVANCED_CONTROL_EXPORT int AcceptedResult(PjtOperation operation);
ADVANCED_CONTROL_EXPORT int RefusedResult(PjtOperation operation);

/// Whether the operation only reads.
ADVANCED_CONTROL_EXPORT bool IsRead(PjtOperation operation);

/// Whether doing it twice comes to the same as doing it once, whatever the projector has before: of
/// reads and of changes that name what they lead to. A step does not, nor does an adjustment.
ADVANCED_CONTROL_EXPORT bool IsAbsolute(PjtOperation operation);
