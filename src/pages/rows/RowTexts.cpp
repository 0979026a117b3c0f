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

QString UnitText(const PageRow& row) {
  const auto* number = std::get_if<ValueRow>(&row);
  return number == nullptr || number->unit == 0 ? QString()
                                                : CatalogString(kListCategory, number->unit);
}

QString WithUnit(const QString& text, const PageRow& row) {
  const QString unit = UnitText(row);
  if (unit.isEmpty()) return text;
  return unit.front().isLetter() ? text + QChar(QChar::Nbsp) + unit : text + unit;
}

QString TextOf(const ListEntry& entry) {
  return entry.text ? CatalogString(kListCategory, *entry.text) : PlainText(entry.name);
}

void FillList(CComboBox& list, std::span<const ListEntry> entries) {
  const CatalogBatch batch;
  std::vector<std::pair<QString, int>> texts;
  texts.reserve(entries.size());
  for (const ListEntry& entry : entries) texts.emplace_back(TextOf(entry), entry.value);
  list.Fill(texts);
}

}  // namespace AdvancedControl
