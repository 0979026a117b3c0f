#include <algorithm>
#include <iterator>

#include "device/CommandCode.h"
#include "settings/MyButtons.h"
#include "settings/PageTables.h"
#include "settings/RowParts.h"

inline namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kCcDisplays =
    Numbered(ListText::ClosedCaptionOff, ListText::ClosedCaptionOn, ListText::ClosedCaptionAuto);
constexpr auto kCcModes = Numbered(ListText::ClosedCaptionCaptions, ListText::ClosedCaptionText);
constexpr auto kCcChannels = Numbered<1>("1", "2", "3", "4");

// Functions that bear another text on some models.
struct FunctionText {
  int code;
  int text;
  ModelCodes models;
};
constexpr FunctionText kFunctionTexts[] = {
    {0, ListText::MyButtonComputer1, {37, 39, 40, 42, 44, 45, 49, 50, 53}},
    {0, ListText::MyButtonComputer, {38}},
    {3, ListText::MyButtonHdmi, {41, 42, 43, 51, 53, 54}},
    {4, ListText::MyButtonComputer2, {37, 39, 40, 42, 44, 45, 49, 50, 53}},
    {22, ListText::MyButtonAvMute, {50, 51, 54}},
    // 42 is left out on purpose: its function 25 bears the common text.
    {25, ListText::MyButtonTemplate, {40, 41, 43, 44, 49, 50, 51, 52, 53, 54}},
    {26, ListText::MyButtonPbyP, {51}},
    {27, ListText::MyButtonMySource, {49, 50, 51, 53, 54}},
    {32, ListText::MyButtonMiuLiveMode, {40, 41, 42, 54}},
    {33, ListText::MyButtonMiuSlideshow, {40, 41, 42, 54}},
    {34, ListText::MyButtonMiuDirectory, {40, 41, 42, 54}},
    {35, ListText::MyButtonMiuMyImage, {40, 41, 42, 54}},
    {36, ListText::MyButtonMiuMessenger, {40, 41, 42, 54}},
    {48, ListText::MyButtonDZoom, {44}},
    {49, ListText::MyButtonDShift, {44}},
    {kOtherFunction, ListText::MyButtonOther, kCodesWithOtherFunction},
};

// For models that bring no list of their own.
constexpr const char* kDefaultTexts[] = {"RGB1",      "RGB2",         "M1-D",
                                         "Component", "S-Video",      "Video",
                                         "MIU",       "Information",  "Auto Keystone Execute",
                                         "My Memory", "Picture Mode", "Filter Reset"};

int TextOfFunction(int code, int modelCode) {
  const auto* found = std::ranges::find_if(kFunctionTexts, [&](const FunctionText& function) {
    return function.code == code && function.models.Contains(modelCode);
  });
  return found == std::end(kFunctionTexts) ? ListText::MyButtonBase + code : found->text;
}

// Other than in a refresh, what is read back is the position, not a code to look up.
constexpr ListRules kMyButton{
    .refused = Refused::ReadsBackPosition,
    .placeholder = {std::nullopt, kCodesWithOtherFunction, kOtherFunction}};

// clang-format off
constexpr PageRow kRows[] = {
    ListRow{"option.auto-search", 16, 20364, kSwitch, Named(Op::GetAutoSearch), Named(Op::SetAutoSearch), kReadBack},
    ListRow{"option.auto-keystone", 18, 20365, kSwitch, Named(Op::GetAutoKeystone), Named(Op::SetAutoKeystone), kReadBack},
    ListRow{"option.auto-on", 93, 20366, kSwitch, Named(Op::GetAutoOn), Named(Op::SetAutoPowerOn), kReadBack},
    NamedSlider("option.auto-off", 94, {20367, 20369, 20368, 20370}, {Op::GetAutoOff, Op::SetAutoPowerOff, Op::DecrementAutoPowerOff, Op::IncrementAutoPowerOff}, RangeIndex::AutoOff, {0, 99}, 5),
    ListRow{"option.my-button-1", 95, 20371, MyButtonEntries, Named(Op::GetMyButton1), Named(Op::SetMyButton1), kMyButton},
    ListRow{"option.my-button-2", 96, 20372, MyButtonEntries, Named(Op::GetMyButton2), Named(Op::SetMyButton2), kMyButton},
    // Other than elsewhere, any result but 0 of the read is a success.
    ListRow{"option.my-source", 216, 20374, SourceEntries, AnyResult(Get(CommandCode::MySource)), Set(CommandCode::MySource), {.error = ErrorText::MySourceRefused}},
    PopUpRow{"option.service", 3097, 20373},
    ListRow{"option.cc-display", 191, 20292, kCcDisplays, Named(Op::GetCCDisplay), Named(Op::SetCCDisplay)},
    ListRow{"option.cc-mode", 192, 20293, kCcModes, Named(Op::GetCCMode), Named(Op::SetCCMode)},
    ListRow{"option.cc-channel", 193, 20294, kCcChannels, Named(Op::GetCCChannel), Named(Op::SetCCChannel)},
};

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

std::vector<ListEntry> MyButtonEntries(const ModelData& model) {
  std::vector<ListEntry> entries;
  const CountedList& functions = model.MyButtonList;
  for (int i = 0; i < functions.Size(); ++i) {
    const int code = functions.values[static_cast<std::size_t>(i)];
    entries.emplace_back(TextOfFunction(code, model.ModelCode), code);
  }
  if (!entries.empty()) return entries;
  for (std::size_t i = 0; i < std::size(kDefaultTexts); ++i) {
    entries.emplace_back(kDefaultTexts[i], MyButtonTable[i]);
  }
  return entries;
}

constinit const PageTable kOptionType5Rows{kRows, kModels, Unlisted::Template};

}  // namespace AdvancedControl
