#include "pages/common/CodeList.h"

#include "i18n/LocalizeControlTexts.h"
#include "resources/CatalogNumbers.h"
#include "toolkit/CComboBox.h"

void FillList(CComboBox& combo, std::span<const int> listTexts) {
  combo.clear();
  for (const int number : listTexts) combo.Add(CatalogString(kListCategory, number));
}

void FillList(CComboBox& combo, std::span<const ListEntry> entries) {
  combo.clear();
  for (const ListEntry& entry : entries) {
    combo.Add(entry.text != nullptr ? QString::fromUtf8(entry.text)
                                    : CatalogString(kListCategory, entry.number));
  }
}

void FillList(CComboBox& combo, const CountedList& values, int base) {
  combo.clear();
  for (int i = 0; i < values.Size(); ++i) {
    const int value = values.values[static_cast<std::size_t>(i)];
    combo.Add(CatalogString(kListCategory, base + value), value);
  }
}

void RefreshList(CComboBox& combo, CPjtInterface& projector, std::uint16_t code) {
  unsigned short value = 0;
  const bool read = combo.count() > 0 && projector.Get(code, 0, &projector, &value) == 1;
  combo.setEnabled(read);
  if (read && !combo.SelectValue(value)) combo.Select(-1);
}
