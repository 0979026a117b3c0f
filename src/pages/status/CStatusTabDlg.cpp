#include "pages/status/CStatusTabDlg.h"

#include <algorithm>
#include <iterator>

#include <QLabel>

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/CComboBox.h"

namespace {

// The value text is put into a catalog text of its own; both may be long.
constexpr int kValueTextSize = 2048;

struct ValueText {
  int value;
  int text;  // catalog number
};

QString TextOf(std::span<const ValueText> texts, int value, int otherwise) {
  const auto found = std::ranges::find(texts, value, &ValueText::value);
  return CatalogString(kListCategory, found == texts.end() ? otherwise : found->text);
}

QString PowerText(const ModelData&, int value) {
  static constexpr ValueText texts[] = {{1, ListText::On}, {2, ListText::PowerCoolingDown}};
  return TextOf(texts, value, ListText::Off);
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

QString ErrorStatusText(const ModelData&, int value) {
  static constexpr ValueText texts[] = {
      {0, ListText::ErrorNone},      {1, ListText::ErrorCover},       {2, ListText::ErrorFan},
      {3, ListText::ErrorLamp},      {4, ListText::ErrorTemperature}, {5, ListText::ErrorAirFlow},
      {6, ListText::ErrorLampTime},  {7, ListText::ErrorCool},        {8, ListText::ErrorFilter},
      {12, ListText::ErrorStatus12},
  };
  return TextOf(texts, value, ListText::ErrorOther);
}

QString OnOffText(const ModelData&, int value) {
  return CatalogString(kListCategory, value == 1 ? ListText::On : ListText::Off);
}

QString FreezeText(const ModelData&, int value) {
  return CatalogString(kListCategory, value == 1 ? ListText::Freeze : ListText::FreezeNormal);
}

QString HoursText(const ModelData&, int value) {
  return CatalogString(kListCategory, ListText::Hours, value);
}

struct StatusRow {
  int valueId;
  std::uint16_t code;
  QString (*text)(const ModelData& model, int value);
};

constexpr StatusRow kRows[] = {
    {20008, CommandCode::RunningState, PowerText},
    {20009, CommandCode::InputSource, InputText},
    {20010, CommandCode::ErrorStatus, ErrorStatusText},
    {20011, CommandCode::BlankState, OnOffText},
    {20012, CommandCode::Mute, OnOffText},
    {20013, CommandCode::Freeze, FreezeText},
    {20014, CommandCode::LampTime, HoursText},
    {20015, CommandCode::FilterTime, HoursText},
};

}  // namespace

CStatusTabDlg::CStatusTabDlg(CWnd* parent) : CTabPage(TemplateId::Status, parent) {}

void CStatusTabDlg::DoDataExchange() { resetList_ = &Item<CComboBox>(20019); }

const NotificationMap& CStatusTabDlg::Notifications() const {
  static const NotificationMap map{
      Passive(20019),
      Clicked(20018, &CStatusTabDlg::OnBnClickedStsRstBtn),
  };
  return map;
}

bool CStatusTabDlg::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  resetList_->clear();
  resetList_->Add(ListString(ListText::LampTime));
  resetList_->Add(ListString(ListText::FilterTime));
  resetList_->Select(0);
  return true;
}

void CStatusTabDlg::InitDisp() {
  for (const StatusRow& row : kRows) {
    unsigned short value = 0;
    const bool read = projector->Get(row.code, 0, projector, &value) == 1;
    QString text = QStringLiteral("-");
    if (read) {
      text = QString::fromStdString(CatalogText<kValueTextSize>(
          kListCategory, ListText::StatusValue, row.text(Model(), value).toStdString()));
    }
    Item<QLabel>(row.valueId).setText(text);
  }
  if (resetList_->currentIndex() < 0) resetList_->Select(0);
}

void CStatusTabDlg::OnBnClickedStsRstBtn() {
  const int result = resetList_->currentIndex() == 0 ? projector->ExecLampTimeReset()
                                                     : projector->ExecFilterTimeReset();
  if (result == 0) InitDisp();
}
