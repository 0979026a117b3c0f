#include "resources/AdvancedControlResources.h"

#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

constexpr const DialogTemplate* kDialogs[] = {
    &kAdvanceTemplate,
    &kGammaTemplate,
    &kColorTempTemplate,
    &kServiceTemplate,
#define PAGE(identifier, number, pageClass) &k##identifier##Template,
#include "settings/Pages.def"
};

}  // namespace

const ResourceModule& AdvancedControlResources() {
  static constexpr ResourceModule module{kDialogs};
  return module;
}

}  // namespace AdvancedControl
