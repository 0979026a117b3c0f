#pragma once

#include <span>

#include "Namespace.h"
#include "resources/TemplateId.h"
#include "toolkit/DialogTemplate.h"

namespace AdvancedControl {

#define PAGE(identifier, number, pageClass) extern const DialogTemplate k##identifier##Template;
#include "settings/Pages.def"

extern const DialogTemplate kAdvanceTemplate;
extern const DialogTemplate kGammaTemplate;
extern const DialogTemplate kColorTempTemplate;
extern const DialogTemplate kServiceTemplate;

/// A row with a list, in the left column. `number` distinguishes its label and colon from those of
/// the other rows.
constexpr RowTemplate ListRow(int number, const char* caption, int list) {
  return tmpl::Row(RowPlace::Left, tmpl::Label(20600 + number, caption),
                   tmpl::Colon(20700 + number), tmpl::Combo(list));
}

/// The template of a page.
constexpr DialogTemplate PageTemplate(int number, std::span<const RowTemplate> rows) {
  return {.number = number, .width = kPageWidth, .height = kPageHeight, .rows = rows};
}

}  // namespace AdvancedControl
