#include "pages/status/CStatusTabDlg.h"

#include <algorithm>
#include <span>

#include <QLabel>

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

namespace {

// The value text is put into a catalog text of its own; both may be long.
constexpr int kValueTextSize = 2048;

struct ValueText {
  int value;
  int text;  // catalog number
};

constexpr ValueText kPowerTexts[] = {{1, ListText::On}, {2, ListText::PowerCoolingDown}};
constexpr ValueText kErrorTexts[] = {
    {0, ListText::ErrorNone},      {1, ListText::ErrorCover},       {2, ListText::ErrorFan},
    {3, ListText::ErrorLamp},      {4, ListText::ErrorTemperature}, {5, ListText::ErrorAirFlow},
    {6, ListText::ErrorLampTime},  {7, ListText::ErrorCool},        {8, ListText::ErrorFilter},
    {12, ListText::ErrorStatus12},
};
constexpr ValueText kOnOffTexts[] = {{1, ListText::On}};
constexpr ValueText kFreezeTexts[] = {{1, ListText::Freeze}};

QString StateText(std::span<const ValueText> texts, int value, int otherwise) {
  const auto found = std::ranges::find(texts, value, &ValueText::value);
  return CatalogString(kListCategory, found == texts.end() ? otherwise : found->text);
}

// Every slot is searched, also those beyond the list's count: hosts leave sources there that the
// projector can still report.
QString InputText(const ModelData& model, int value) {
  const SourceList& sources = model.MySourceList;
  const auto found = std::ranges::find(sources.firstValues, value);
  if (found == sources.firstValues.end()) return {};
  const auto index = static_cast<std::size_t>(found - sources.firstValues.begin());
  return QString::fromUtf8(NameText(sources.names[index]));
}

}  // namespace

CStatusTabDlg::CStatusTabDlg(CWnd* parent) : CTabPage(TemplateId::Status, kStatusRows, parent) {}

bool CStatusTabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  List(20019).Select(0);
  return true;
}

void CStatusTabDlg::RefreshOwn(const OwnRow& row) {
  QString text = QStringLiteral("-");
  if (const auto value = Read(*projector, *row.read)) {
    text = QString::fromStdString(CatalogText<kValueTextSize>(
        kListCategory, ListText::StatusValue, TextOf(row.control, *value).toStdString()));
  }
  Item<QLabel>(row.control).setText(text);
}

QString CStatusTabDlg::TextOf(int control, int value) const {
  switch (control) {
    case 20008:
      return StateText(kPowerTexts, value, ListText::Off);
    case 20009:
      return InputText(Model(), value);
    case 20010:
      return StateText(kErrorTexts, value, ListText::ErrorOther);
    case 20013:
      return StateText(kFreezeTexts, value, ListText::FreezeNormal);
    case 20014:
    case 20015:
      return CatalogString(kListCategory, ListText::Hours, value);
    default:
      return StateText(kOnOffTexts, value, ListText::Off);
  }
}
