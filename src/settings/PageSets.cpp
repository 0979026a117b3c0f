#include "settings/PageSets.h"

#include <algorithm>
#include <iterator>

#include "settings/CatalogNumbers.h"

namespace AdvancedControl {

namespace {

using enum PageId;

constexpr PageId kPages1[] = {Main, Picture1, Picture2, Input, Auto, Option, Screen, Other};
constexpr PageId kPages2[] = {Main2, Picture12, Picture22, Input2, Auto2, Option2, Screen, Other};
constexpr PageId kPages3[] = {Setup, Input3, Image, Option3, Other};
constexpr PageId kPages4[] = {Pic, Image4, Video, Input4, Screen4, Setup4, Option4, Other4};
constexpr PageId kPages5[] = {PictureType5, Image4,      InputType5, Screen4,
                              SetupType5,   OptionType5, Other4,     AudioType5};

constexpr PageTab kTabs1[] = {
    {Caption::TabMain, Main},         {Caption::TabPicture1, Picture1},
    {Caption::TabPicture2, Picture2}, {Caption::TabInput, Input},
    {Caption::TabAuto, Auto},         {Caption::TabScreen, Screen},
    {Caption::TabOption, Option},     {Caption::TabOther, Other},
};
constexpr PageTab kTabs2WithAuto[] = {
    {Caption::TabMain, Main2},         {Caption::TabPicture1, Picture12},
    {Caption::TabPicture2, Picture22}, {Caption::TabInput, Input2},
    {Caption::TabAuto, Auto2},         {Caption::TabScreen, Screen},
    {Caption::TabOption, Option2},     {Caption::TabOther, Other},
};
constexpr PageTab kTabs2[] = {
    {Caption::TabMain, Main2},         {Caption::TabPicture1, Picture12},
    {Caption::TabPicture2, Picture22}, {Caption::TabInput, Input2},
    {Caption::TabScreen, Screen},      {Caption::TabOption, Option2},
    {Caption::TabOther, Other},
};
// The setup page of this set has picture settings on most models, so its tab is called "Picture"
// there.
constexpr PageTab kTabs3AsPicture[] = {
    {Caption::TabPicture, Setup},  {Caption::TabInput, Input3}, {Caption::TabImage, Image},
    {Caption::TabOption, Option3}, {Caption::TabOther, Other},
};
constexpr PageTab kTabs3AsSetup[] = {
    {Caption::TabSetup, Setup},    {Caption::TabInput, Input3}, {Caption::TabImage, Image},
    {Caption::TabOption, Option3}, {Caption::TabOther, Other},
};
constexpr PageTab kTabs4WithVideo[] = {
    {Caption::TabPicture, Pic},    {Caption::TabImage, Image4}, {Caption::TabVideo, Video},
    {Caption::TabInput, Input4},   {Caption::TabSetup, Setup4}, {Caption::TabScreen, Screen4},
    {Caption::TabOption, Option4}, {Caption::TabOther, Other4},
};
constexpr PageTab kTabs4[] = {
    {Caption::TabPicture, Pic},  {Caption::TabImage, Image4},   {Caption::TabInput, Input4},
    {Caption::TabSetup, Setup4}, {Caption::TabScreen, Screen4}, {Caption::TabOption, Option4},
    {Caption::TabOther, Other4},
};
constexpr PageTab kTabs5WithAudio[] = {
    {Caption::TabPicture, PictureType5}, {Caption::TabImage, Image4},
    {Caption::TabInput, InputType5},     {Caption::TabSetup, SetupType5},
    {Caption::TabAudio, AudioType5},     {Caption::TabScreen, Screen4},
    {Caption::TabOption, OptionType5},   {Caption::TabOther, Other4},
};
constexpr PageTab kTabs5[] = {
    {Caption::TabPicture, PictureType5}, {Caption::TabImage, Image4},
    {Caption::TabInput, InputType5},     {Caption::TabSetup, SetupType5},
    {Caption::TabScreen, Screen4},       {Caption::TabOption, OptionType5},
    {Caption::TabOther, Other4},
};

// The tabs of a page set: one list for some model codes, another for all others.
struct TabRule {
  int dialogType;
  std::span<const int> codes;
  std::span<const PageTab> listed;
  std::span<const PageTab> others;
};

constexpr int kCodesWithAuto[] = {6, 7};
constexpr int kCodesWithSetup[] = {10, 47, 48, 71};
constexpr int kCodesWithVideo[] = {9, 22};
constexpr int kCodesWithAudio[] = {30, 31, 41, 43, 46, 49, 50, 51, 52, 53, 54};

constexpr TabRule kTabRules[] = {
    {1, {}, kTabs1, kTabs1},
    {2, kCodesWithAuto, kTabs2WithAuto, kTabs2},
    {3, kCodesWithSetup, kTabs3AsSetup, kTabs3AsPicture},
    {4, kCodesWithVideo, kTabs4WithVideo, kTabs4},
    {5, kCodesWithAudio, kTabs5WithAudio, kTabs5},
};

}  // namespace

std::span<const PageId> PagesOf(int dialogType) {
  switch (dialogType) {
    case 1:
      return kPages1;
    case 2:
      return kPages2;
    case 3:
      return kPages3;
    case 4:
      return kPages4;
    case 5:
      return kPages5;
    default:
      return {};
  }
}

std::span<const PageTab> TabsOf(int dialogType, int modelCode) {
  const auto rule = std::ranges::find(kTabRules, dialogType, &TabRule::dialogType);
  if (rule == std::end(kTabRules)) return {};
  const bool isListed = std::ranges::find(rule->codes, modelCode) != rule->codes.end();
  return isListed ? rule->listed : rule->others;
}

}  // namespace AdvancedControl
