#include "settings/PageTables.h"

#include "device/ModelData.h"
#include "settings/ControlId.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

bool HasEntry(const CountedList& list, auto fits) {
  for (int i = 0; i < list.Size(); ++i) {
    if (fits(i, list.values[static_cast<std::size_t>(i)])) return true;
  }
  return false;
}

}  // namespace

const PageTable& TableOf(PageId page) {
  static constexpr const PageTable* kTables[] = {
#define PAGE(identifier, number, pageClass) &k##identifier##Rows,
#include "settings/Pages.def"
  };
  return *kTables[static_cast<std::size_t>(page)];
}

// The pop-ups for the user's gamma and colour temperature need a model that has such entries.
std::vector<PagePopUp> PopUpsOf(PageId page, const ModelData& model) {
  if (page == PageId::OptionType5)
    return {{&kServiceRows, ControlId::OptionType5::Service, ControlId::OptionType5::Service}};
  const bool byValue = page == PageId::PictureType5;
  if (!byValue && page != PageId::Pic) return {};
  std::vector<PagePopUp> popUps;
  if (HasEntry(model.GammaList, [byValue](int position, int value) {
        return byValue ? value <= kLastCustomGamma : position <= kLastCustomGammaPosition;
      })) {
    popUps.push_back({&kGammaRows, ControlId::Picture::Gamma, ControlId::Picture::CustomGamma});
  }
  if (HasEntry(model.ColorTempList, [byValue](int position, int value) {
        return byValue ? value >= kFirstCustomColorTemp : position == kCustomColorTempPosition;
      })) {
    popUps.push_back(
        {&kColorTempRows, ControlId::Picture::ColorTemp, ControlId::Picture::CustomColorTemp});
  }
  return popUps;
}

}  // namespace AdvancedControl
