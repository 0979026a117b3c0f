#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "ProjectorCommonExport.h"
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
PROJECTOR_COMMON_EXPORT std::string_view OperationName(PjtOperation operation);

/// The operation of that name, or nothing.
PROJECTOR_COMMON_EXPORT std::optional<PjtOperation> OperationByName(std::string_view name);

/// The operation's number on the wire, 1 or above, and the operation of that number, or nothing.
PROJECTOR_COMMON_EXPORT std::uint16_t OperationNumber(PjtOperation operation);
PROJECTOR_COMMON_EXPORT std::optional<PjtOperation> OperationByNumber(std::uint16_t number);

PROJECTOR_COMMON_EXPORT OperationFamily FamilyOf(PjtOperation operation);
inline const OperationForm& FormOf(PjtOperation operation) { return FormOf(FamilyOf(operation)); }

/// Whether `result`, as a reply carries it, says that the projector did what was asked. Families
/// whose caller gets no result still carry one in the reply: nonzero is success.
PROJECTOR_COMMON_EXPORT bool IsSuccess(PjtOperation operation, int result);

/// A result that says success, and one that says refusal, by the operation's family.
PROJECTOR_COMMON_EXPORT int AcceptedResult(PjtOperation operation);
PROJECTOR_COMMON_EXPORT int RefusedResult(PjtOperation operation);

/// Whether the operation only reads.
PROJECTOR_COMMON_EXPORT bool IsRead(PjtOperation operation);

/// Whether doing it twice comes to the same as doing it once, whatever the projector has before: of
/// reads and of changes that name what they lead to. A step does not, nor does an adjustment.
PROJECTOR_COMMON_EXPORT bool IsAbsolute(PjtOperation operation);
