#include "device/CommandCode.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/RowParts.h"
#include "settings/option/MyButtons.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::OptionType5;

using Op = PjtOperation;

constexpr auto kCcDisplays =
    Numbered(ListText::ClosedCaptionOff, ListText::ClosedCaptionOn, ListText::ClosedCaptionAuto);
constexpr auto kCcModes = Numbered(ListText::ClosedCaptionCaptions, ListText::ClosedCaptionText);
constexpr auto kCcChannels = Numbered<1>("1", "2", "3", "4");

// A value that is read back after a refusal is a position; in a refresh it is a function code.
constexpr ListRules kMyButton{
    .refused = Refused::ReadsBackPosition,
    .placeholder = {std::nullopt, kCodesWithOtherFunction, kOtherFunction}};

constexpr PageRow kRows[] = {
    ListRow{"option.auto-search", 16, Id::AutoSearch, kSwitch, Named(Op::GetAutoSearch),
            Named(Op::SetAutoSearch), kReadBack},
    ListRow{"option.auto-keystone", 18, Id::AutoKeystone, kSwitch, Named(Op::GetAutoKeystone),
            Named(Op::SetAutoKeystone), kReadBack},
    ListRow{"option.auto-on", 93, Id::AutoOn, kSwitch, Named(Op::GetAutoOn),
            Named(Op::SetAutoPowerOn), kReadBack},
    InUnit(ListText::Minutes,
           NamedSlider("option.auto-off", 94,
                       {Id::AutoOffMinus, Id::AutoOff, Id::AutoOffPlus, Id::AutoOffField},
                       {Op::GetAutoOff, Op::SetAutoPowerOff, Op::DecrementAutoPowerOff,
                        Op::IncrementAutoPowerOff},
                       RangeIndex::AutoOff, {0, 99}, 5)),
    ListRow{"option.my-button-1", 95, Id::MyButton1, MyButtonEntries, Named(Op::GetMyButton1),
            Named(Op::SetMyButton1), kMyButton},
    ListRow{"option.my-button-2", 96, Id::MyButton2, MyButtonEntries, Named(Op::GetMyButton2),
            Named(Op::SetMyButton2), kMyButton},
    // Unlike in other reads, any result but 0 is a success.
    ListRow{"option.my-source",
            216,
            Id::MySource,
            SourceEntries,
            AnyResult(Get(CommandCode::MySource)),
            Set(CommandCode::MySource),
            {.error = ErrorText::MySourceRefused}},
    PopUpRow{"option.service", 3097, Id::Service},
    ListRow{"option.cc-display", 191, Id::CcDisplay, kCcDisplays, Named(Op::GetCCDisplay),
            Named(Op::SetCCDisplay)},
    ListRow{"option.cc-mode", 192, Id::CcMode, kCcModes, Named(Op::GetCCMode),
            Named(Op::SetCCMode)},
    ListRow{"option.cc-channel", 193, Id::CcChannel, kCcChannels, Named(Op::GetCCChannel),
            Named(Op::SetCCChannel)},
};

// clang-format off
constexpr ModelRows kModels[] = {
    //                                                  Auto Search  Service
    //                                                  |Auto Keyst. |C.C. Display
    //                                                  ||Auto On    ||C.C. Mode
    //                                                  |||Auto Off  |||C.C. Channel
    //                                                  |||| My Button-1, -2
    //                                                  |||| || My Source
    {{30, 31, 32, 33, 36, 37, 38, 39, 41, 43, 46, 52}, "1111 11 0    1000"},
    {{40, 42, 45},                                     "1111 11 0    1111"},
    {{44},                                             "1011 11 0    1111"},
    {{49, 50, 51, 53, 54},                             "1111 11 1    1111"},
};
// clang-format on
static_assert(AreComplete(kModels, std::ssize(kRows)));

}  // namespace

constinit const PageTable kOptionType5Rows{kRows, kModels, Unlisted::Template};

}  // namespace AdvancedControl
