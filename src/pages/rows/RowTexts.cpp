#include "pages/rows/RowTexts.h"

#include "i18n/Catalog.h"
#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

QString PlainText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A caption that is the same in every language is not in the catalog.
QString CaptionText(const PageRow& row) {
  const int number = CaptionOf(row);
  if (number != 0) return CatalogString(kCaptionCategory, number);
  return PlainText(KeyOf(row)).section(QLatin1Char('.'), -1).toUpper();
}

QString TextOf(const ListEntry& entry) {
  return entry.text ? CatalogString(kListCategory, *entry.text) : PlainText(entry.name);
}

void FillList(CComboBox& list, std::span<const ListEntry> entries) {
  const CatalogBatch batch;
  list.clear();
  for (const ListEntry& entry : entries) list.Add(TextOf(entry), entry.value);
}

}  // namespace AdvancedControl
