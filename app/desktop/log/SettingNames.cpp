#include "app/desktop/log/SettingNames.h"

#include <optional>
#include <variant>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"
#include "simulator/SettingsTable.h"

namespace {

using Names = std::map<std::uint16_t, QString>;

// If several rows have the same code, the name is that of the first.
class RowNames {
 public:
  explicit RowNames(Names& names) : names_(names) {}

  void operator()(const ListRow& row) { Add(row.caption, {row.read, row.send}); }
  void operator()(const ValueRow& row) {
    Add(row.caption, {row.Reading(), row.Setting(), row.Stepping(false), row.Stepping(true)});
  }
  void operator()(const CheckRow& row) { Add(row.caption, {row.read, row.send}); }
  void operator()(const ActionRow& row) { Add(row.caption, {row.call}); }
  void operator()(const ResetRow&) {}
  void operator()(const StateRow& row) { Add(row.caption, {row.read}); }
  void operator()(const PopUpRow&) {}

 private:
  void Add(int caption, std::initializer_list<std::optional<Call>> calls) {
    if (caption == 0) return;
    for (const std::optional<Call>& call : calls) {
      if (!call || !FormOf(call->operation).isGeneric) continue;
      if (QString& name = names_[call->code]; name.isEmpty()) {
        name = CatalogString(kCaptionCategory, caption);
      }
    }
  }

  Names& names_;
};

void AddTable(Names& names, const PageTable& table, int modelCode) {
  RowNames add(names);
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    if (Has(table, row, modelCode)) std::visit(add, table.rows[row]);
  }
}

}  // namespace

std::map<std::uint16_t, QString> SettingNames(int dialogType, int modelCode) {
  Names names;
  AddTable(names, TableOf(PageId::Status), modelCode);
  for (const PageTab& tab : TabsOf(dialogType, modelCode)) {
    AddTable(names, TableOf(tab.page), modelCode);
  }
  for (const PageTable* popUp : {&kGammaRows, &kColorTempRows, &kServiceRows}) {
    AddTable(names, *popUp, modelCode);
  }
  for (const Setting& setting : SettingsTable()) {
    if (setting.code == 0) continue;
    names.try_emplace(setting.code, QString::fromUtf8(setting.name.data(),
                                                      static_cast<qsizetype>(setting.name.size())));
  }
  return names;
}
