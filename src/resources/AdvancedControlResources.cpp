#include "resources/AdvancedControlResources.h"

#include "resources/Templates.h"

namespace {

constexpr const DialogTemplate* kDialogs[] = {
    &kAdvanceTemplate,   &kStatusTemplate,     &kPictureType5Template, &kGammaTemplate,
    &kColorTempTemplate, &kSetupType5Template, &kInputType5Template,   &kOptionType5Template,
    &kServiceTemplate,   &kAudioType5Template, &kPicTemplate,          &kPicture1Template,
    &kPicture12Template, &kPicture2Template,   &kPicture22Template,    &kImageTemplate,
    &kImage4Template,    &kSetupTemplate,      &kSetup4Template,       &kScreenTemplate,
    &kScreen4Template,   &kInputTemplate,      &kInput2Template,       &kInput3Template,
    &kInput4Template,    &kVideoTemplate,      &kMainTemplate,         &kMain2Template,
    &kAutoTemplate,      &kAuto2Template,      &kOptionTemplate,       &kOption2Template,
    &kOption3Template,   &kOption4Template,    &kOtherTemplate,        &kOther4Template,
};

}  // namespace

const ResourceModule& AdvancedControlResources() {
  static constexpr ResourceModule module{kDialogs};
  return module;
}
