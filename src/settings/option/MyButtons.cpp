#include "settings/option/MyButtons.h"

#include <algorithm>
#include <iterator>

#include "settings/CatalogNumbers.h"

namespace AdvancedControl {

namespace {

// Functions whose text differs on some models.
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
    // Intended: 42 is missing, because its function 25 has the common text.
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

// For models without their own list.
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

}  // namespace AdvancedControl
