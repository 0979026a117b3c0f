#pragma once

#include <span>

#include "Namespace.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/DialogTemplate.h"

namespace AdvancedControl {

#define PAGE(identifier, number, pageClass) extern const DialogTemplate k##identifier##Template;
#include "settings/Pages.def"

extern const DialogTemplate kAdvanceTemplate;
extern const DialogTemplate kGammaTemplate;
extern const DialogTemplate kColorTempTemplate;
extern const DialogTemplate kServiceTemplate;

/// The template of a page.
constexpr DialogTemplate PageTemplate(int number, std::span<const RowTemplate> rows) {
  return {.number = number, .width = kPageWidth, .height = kPageHeight, .rows = rows};
}

}  // namespace AdvancedControl
