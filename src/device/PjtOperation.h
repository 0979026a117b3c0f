#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/OperationFamily.h"

namespace AdvancedControl {

/// Every operation of a projector, with the name of its member in `CPjtInterface`.
enum class PjtOperation {
#define PJT_OPERATION(name, family, number) name,
#include "device/PjtOperations.def"
};

/// Number of operations; their enumerators run from 0 to `kOperationCount` − 1.
inline constexpr std::size_t kOperationCount = 0
#define PJT_OPERATION(name, family, number) +1
#include "device/PjtOperations.def"
    ;

// The functions below may be called from any thread.

/// The operation's name, which is that of its member in `CPjtInterface`.
PROJECTOR_COMMON_EXPORT std::string_view OperationName(PjtOperation operation);

/// The operation of that name, or nothing.
PROJECTOR_COMMON_EXPORT std::optional<PjtOperation> OperationByName(std::string_view name);

/// The operation's number in the wire protocol, 1 or above; and the operation with a number, or
/// nothing.
PROJECTOR_COMMON_EXPORT std::uint16_t OperationNumber(PjtOperation operation);
PROJECTOR_COMMON_EXPORT std::optional<PjtOperation> OperationByNumber(std::uint16_t number);

PROJECTOR_COMMON_EXPORT OperationFamily FamilyOf(PjtOperation operation);
inline const OperationForm& FormOf(PjtOperation operation) { return FormOf(FamilyOf(operation)); }

/// Whether `result`, taken from a reply, is a success. Also for families that return no result to
/// the caller: their replies have one, and nonzero is success.
PROJECTOR_COMMON_EXPORT bool IsSuccess(PjtOperation operation, int result);

/// A result that means success, and one that means refusal, for the operation's family.
PROJECTOR_COMMON_EXPORT int AcceptedResult(PjtOperation operation);
PROJECTOR_COMMON_EXPORT int RefusedResult(PjtOperation operation);

/// Whether the operation only reads.
PROJECTOR_COMMON_EXPORT bool IsRead(PjtOperation operation);

/// Whether the operation can be repeated without changing its effect: true for reads and for
/// changes to a given value, false for steps and automatic adjustments.
PROJECTOR_COMMON_EXPORT bool IsAbsolute(PjtOperation operation);

}  // namespace AdvancedControl
