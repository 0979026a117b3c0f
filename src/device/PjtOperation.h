#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "AdvancedControlExport.h"
#include "device/OperationFamily.h"

/// Every operation that the projector understands, named as `CPjtInterface` names it.
enum class PjtOperation {
#define PJT_OPERATION(name, family, number) name,
#include "device/PjtOperations.def"
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
inline const OperationForm& FormOf(PjtOperation operation) { return FormOf(FamilyOf(operation)); }

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
