#include "resources/AdvancedControlResources.h"

#include <array>

#include "resources/Templates.h"

namespace {

// A page that has its place and size, but no controls yet.
constexpr DialogTemplate Plain(int number) {
  return {.number = number, .width = kPageWidth, .height = kPageHeight};
}

constexpr std::array kPlainPages{
    Plain(TemplateId::Main),      Plain(TemplateId::Main2),    Plain(TemplateId::Picture1),
    Plain(TemplateId::Picture12), Plain(TemplateId::Picture2), Plain(TemplateId::Picture22),
    Plain(TemplateId::Input),     Plain(TemplateId::Input2),   Plain(TemplateId::Auto),
    Plain(TemplateId::Auto2),     Plain(TemplateId::Option),   Plain(TemplateId::Option2),
    Plain(TemplateId::Screen),    Plain(TemplateId::Other),    Plain(TemplateId::Image),
    Plain(TemplateId::Image4),    Plain(TemplateId::Video),    Plain(TemplateId::Input4),
    Plain(TemplateId::Screen4),   Plain(TemplateId::Setup4),   Plain(TemplateId::Option4),
    Plain(TemplateId::Other4),    Plain(TemplateId::Pic),      Plain(TemplateId::Setup),
    Plain(TemplateId::Input3),    Plain(TemplateId::Option3),
};

constexpr std::array kFilledDialogs{
    &kAdvanceTemplate,   &kStatusTemplate,     &kPictureType5Template, &kGammaTemplate,
    &kColorTempTemplate, &kSetupType5Template, &kInputType5Template,   &kOptionType5Template,
    &kServiceTemplate,   &kAudioType5Template};

constexpr auto kAllDialogs = [] {
  std::array<const DialogTemplate*, kFilledDialogs.size() + kPlainPages.size()> all{};
  std::size_t next = 0;
  for (const DialogTemplate* dialog : kFilledDialogs) all[next++] = dialog;
  for (const DialogTemplate& dialog : kPlainPages) all[next++] = &dialog;
  return all;
}();

}  // namespace

const ResourceModule& AdvancedControlResources() {
  static constexpr ResourceModule module{kAllDialogs};
  return module;
}
