#include "settings/CatalogNumbers.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Service;

using Op = PjtOperation;

constexpr auto kEnable = Numbered(ListText::Disable, ListText::Enable);
constexpr auto kFineAdjust =
    Numbered(ListText::Disable, ListText::AutoAdjustFine, ListText::AutoAdjustFast);
constexpr auto kFocusLock = Numbered(ListText::FocusLockOff, ListText::FocusLockOn);
constexpr ModelEntries kAutoAdjust[] = {
    {{37, 38, 39, 40, 41, 42, 43, 44, 45, 49, 50, 51, 52, 53, 54}, kFineAdjust}, {{}, kEnable}};

constexpr ListRules kReadBack{.refused = Refused::ReadsBack};

constexpr PageRow kRows[] = {
    ListRow{"service.auto-adjust", 1085, Id::AutoAdjust, kAutoAdjust,
            Named(Op::GetAutoAdjustEnable), Named(Op::SetAutoAdjustEnable), kReadBack},
    CheckRow{"service.ir-front", 81, Id::IrFront, Named(Op::GetIRRemoteFront),
             Named(Op::SetIRFront)},
    CheckRow{"service.ir-rear", 82, Id::IrRear, Named(Op::GetIRRemoteRear), Named(Op::SetIRRear)},
    CheckRow{"service.ir-top", 83, Id::IrTop, Named(Op::GetIRRemoteTop), Named(Op::SetIRTop)},
    ListRow{"service.ir-frequency-normal", 1134, Id::IrFrequencyNormal, kEnable,
            Named(Op::GetIRREmoteFreqNormal), Named(Op::SetIRRemoteFreqNormal), kReadBack},
    ListRow{"service.ir-frequency-high", 1135, Id::IrFrequencyHigh, kEnable,
            Named(Op::GetIRRemoteFreqHigh), Named(Op::SetIRRemoteFreqHigh), kReadBack},
    ListRow{"service.focus-lock", 196, Id::FocusLock, kFocusLock, Named(Op::GetFocusLock),
            Named(Op::SetFocusLock), kReadBack},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //                                                   Auto Adjust Enable
    //                                                   | IR Remote Front, Rear, Top
    //                                                   | ||| IR Remote Frequency Normal
    //                                                   | ||| |IR Remote Frequency High
    //                                                   | ||| ||Focus Lock
    {{30, 31, 41, 43, 46, 51, 52, 54},                  "1 111 110"},
    {{32, 33, 36, 37, 38, 39, 40, 42, 45, 49, 50, 53},  "1 000 110"},
    {{44},                                              "1 101 111"},  // no rear receiver
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows)));

}  // namespace

constinit const PageTable kServiceRows{kRows, kModels, Unlisted::Template};

}  // namespace AdvancedControl
