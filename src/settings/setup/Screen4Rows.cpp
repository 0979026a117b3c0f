#include <utility>

#include "settings/PageTables.h"
#include "settings/setup/ScreenLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;
using Code = std::uint16_t;

constexpr int kLanguages = 17;

// Series in which one model, identified by its name, has an additional language.
constexpr std::pair<int, std::string_view> kNamedModels[] = {
    {11, "QD-M7450"}, {12, "QD-M7400"}, {13, "QD-S7350"}};

std::vector<ListEntry> LanguageEntries(const ModelData& model) {
  int count = kLanguages;
  for (const auto& [code, name] : kNamedModels) {
    if (code == model.ModelCode) count -= model.ModelName == name ? 1 : 2;
  }
  std::vector<ListEntry> entries;
  entries.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) entries.emplace_back(ListText::LanguageBase + i, i);
  return entries;
}

// A half of the picture gets a source by its position in the model's list.
std::vector<ListEntry> SourcePositions(const ModelData& model) {
  std::vector<ListEntry> entries = SourceEntries(model);
  for (std::size_t i = 0; i < entries.size(); ++i) entries[i].value = static_cast<int>(i);
  return entries;
}

constexpr auto kTemplates =
    Numbered(ListText::TemplateTestPattern, ListText::TemplateDotLine1, ListText::TemplateDotLine2,
             ListText::TemplateDotLine3, ListText::TemplateDotLine4, ListText::TemplateCircle1,
             ListText::TemplateCircle2, ListText::TemplateMap1, ListText::TemplateMap2);
constexpr auto kSizes = Numbered(ListText::PbyPSizeSmall, ListText::PbyPSizeMiddle,
                                 ListText::PbyPSizeLarge, ListText::PbyPSizeFull);
constexpr auto kAreas = Numbered(ListText::PbyPAreaLeft, ListText::PbyPAreaRight);

// A list that shows an error for a refused choice and keeps the refused entry.
constexpr ListRow WithError(std::string_view key, int caption, int control, Entries entries,
                            Code code, int error) {
  return {key, caption, control, entries, Get(code), Set(code), {.error = error}};
}

constexpr ResetEntry kResets[] = {
    {ListText::MenuPositionV, Op::ExecMenuPositionVReset, 20231},
    {ListText::MenuPositionH, Op::ExecMenuPositionHReset, 20232},
};

// Every model has all rows. If it does not have a setting, the row is disabled.
constexpr PageRow kRows[] = {
    ListRow{"screen.language", 76, 20226, LanguageEntries, Get(CommandCode::Language),
            Named(Op::SetLanguage)},
    MenuPosition("screen.menu-position-v", {20230, 0, 20227, 20231}, CommandCode::MenuPositionV),
    MenuPosition("screen.menu-position-h", {20228, 0, 20229, 20232}, CommandCode::MenuPositionH),
    ValueRow{.key = "screen.osd-brightness",
             .caption = 133,
             .ids = {20233, 20234, 20235, 20236},
             .code = CommandCode::OsdBrightness,
             .rangeText = RangeIndex::OsdBrightness,
             .range = Range{0, 255},
             .bounds = kUnbounded,
             .ticks = 32,
             .error = ErrorText::OsdBrightRefused},
    ListRow{"screen.blank", 38, 20237, kBlanks, Get(CommandCode::BlankColor),
            Named(Op::SetBlankColor), kBlankRules},
    ListRow{"screen.startup", 1039, 21086, kStartups, Get(CommandCode::Startup),
            Named(Op::SetStartup), kStartupRules},
    ListRow{"screen.my-screen-lock", 1130, 20238, kSwitch, Get(CommandCode::MyScreenLock),
            Named(Op::SetMyScreenLock)},
    ListRow{"screen.message", 131, 20239, kSwitch, Get(CommandCode::Message),
            Named(Op::SetMessage)},
    WithError("screen.template", 209, 20242, kTemplates, CommandCode::Template,
              ErrorText::TemplateRefused),
    WithError("screen.p-by-p", 210, 20243, kSwitch, CommandCode::PbyP, ErrorText::PbyPRefused),
    WithError("screen.p-by-p-size", 211, 20244, kSizes, CommandCode::PbyPSize,
              ErrorText::PbyPSizeRefused),
    WithError("screen.p-by-p-sub-source", 212, 20245, SourcePositions, CommandCode::PbyPSubSource,
              ErrorText::PbyPSubSourceRefused),
    WithError("screen.p-by-p-main-area", 213, 20246, kAreas, CommandCode::PbyPMainArea,
              ErrorText::PbyPMainAreaRefused),
    WithError("screen.p-by-p-start-area", 214, 20247, kAreas, CommandCode::PbyPStartArea,
              ErrorText::PbyPStartAreaRefused),
    WithError("screen.p-by-p-main-source", 215, 20248, SourcePositions, CommandCode::PbyPMainSource,
              ErrorText::PbyPMainSourceRefused),
    ResetRow{"screen.reset", 20240, 20241, kResets},
};

}  // namespace

constinit const PageTable kScreen4Rows{kRows};

}  // namespace AdvancedControl
