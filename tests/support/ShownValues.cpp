#include "tests/support/ShownValues.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <gtest/gtest.h>

#include "pages/common/CTabPage.h"
#include "settings/PageTables.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"

namespace {

// Compares what a row's control shows with what it should show for the projector's value.
void ExpectShows(const ListRow& row, int value, const CTabPage& page, const ModelData&) {
  const auto& list = page.Item<CComboBox>(row.control);
  EXPECT_TRUE(list.isEnabled());
  int position = list.findData(value);
  if (position < 0 && row.rules.noEntry == NoEntry::IsPosition && value < list.count()) {
    position = value;
  }
  if (position >= 0 || row.rules.noEntry == NoEntry::Clears) {
    EXPECT_EQ(list.currentIndex(), position);
  }
}

void ExpectShows(const ValueRow& row, int value, const CTabPage& page, const ModelData&) {
  EXPECT_EQ(page.Item<QLineEdit>(row.ids.field).text(), QString::number(value - row.bias));
  if (row.stepsOnly) return;
  const auto& slider = page.Item<QSlider>(row.ids.slider);
  EXPECT_TRUE(slider.isEnabled());
  EXPECT_EQ(slider.value(), std::clamp(value - row.bias, slider.minimum(), slider.maximum()));
}

void ExpectShows(const CheckRow& row, int value, const CTabPage& page, const ModelData&) {
  EXPECT_EQ(page.Item<QAbstractButton>(row.control).isChecked(), value != 0);
}

void ExpectShows(const auto&, int, const CTabPage&, const ModelData&) {}

}  // namespace

void ExpectShowsProjector(CAdvanceDlg& dialog) {
  const ModelData& model = dialog.Model();
  const int tab = dialog.findChild<QTabBar*>()->currentIndex();
  const auto pages = TabsOf(model.DialogType, model.ModelCode);
  const PageTable& table =
      TableOf(tab == 0 ? PageId::Status : pages[static_cast<std::size_t>(tab) - 1].page);
  if (KeepsTemplate(table, model.ModelCode)) return;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const PageRow& row = table.rows[i];
    if (!Has(table, i, model.ModelCode) || !ReadingOf(row, model)) continue;
    SCOPED_TRACE(KeyOf(row));
    const auto value = ReadRow(dialog.Projector(), row, model);
    ASSERT_TRUE(value);
    std::visit([&](const auto& kind) { ExpectShows(kind, *value, *dialog.ShownPage(), model); },
               row);
  }
}
