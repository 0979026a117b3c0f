#include "pages/input/COption5TabDlg.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "device/CommandCode.h"
#include "pages/common/CodeList.h"
#include "pages/common/Reader.h"
#include "pages/input/CServiceDlg.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/CComboBox.h"

namespace {

enum Row : std::size_t {
  AutoSearch,
  AutoKeystone,
  AutoOn,
  AutoOff,
  MyButton1,
  MyButton2,
  MySource,
  Service,
  CcDisplay,
  CcMode,
  CcChannel,
};

// A control of each row, by which the row is found.
constexpr int kRowControls[] = {20364, 20365, 20366, 20369, 20371, 20372,
                                20374, 20373, 20292, 20293, 20294};

// clang-format off
constexpr ModelRows kModelRows[] = {
    //                                                  Auto Search  Service
    //                                                  |Auto Keyst. |C.C. Display
    //                                                  ||Auto On    ||C.C. Mode
    //                                                  |||Auto Off  |||C.C. Channel
    //                                                  |||| My Button-1, -2
    //                                                  |||| || My Source
    {{30, 31, 32, 33, 36, 37, 38, 39, 41, 43, 46, 52}, "1111 11 0    1000"},
    {{40, 42, 45},                                     "1111 11 0    1111"},
    {{44},                                             "1011 11 0    1111"},
    {{49, 50, 51, 53, 54},                             "1111 11 1    1111"},
};
// clang-format on
static_assert(AreComplete(kModelRows, std::ssize(kRowControls)));

constexpr Range kDefaultAutoOffRange{0, 99};
constexpr int kAutoOffTicks = 5;

constexpr int kSwitchTexts[] = {ListText::SwitchOff, ListText::SwitchOn};
constexpr int kCcDisplayTexts[] = {ListText::ClosedCaptionOff, ListText::ClosedCaptionOn,
                                   ListText::ClosedCaptionAuto};
constexpr int kCcModeTexts[] = {ListText::ClosedCaptionCaptions, ListText::ClosedCaptionText};
constexpr ListEntry kCcChannels[] = {"1", "2", "3", "4"};
constexpr int kFirstCcChannel = 1;

// Function codes of the template's my-button entries, for models that bring no list of their own.
constexpr int MyButtonTable[] = {0,  4,  3,  5,  2,  1,  6,  16, 17,
                                 18, 19, 20, 21, 22, 23, 24, -1};  // -1: 0xFFFFFFFF, the end

// Stands in the list for an assignment that the list does not offer; nobody can choose it.
constexpr int kOtherFunction = 255;
constexpr ModelCodes kCodesWithOtherFunction{44, 49, 50, 51, 53, 54};

// Functions that bear another text on some models.
struct FunctionText {
  int code;
  int text;
  ModelCodes models;
};
constexpr FunctionText kFunctionTexts[] = {
    {0, ListText::MyButtonComputer1, {37, 39, 40, 42, 44, 45, 49, 50, 53}},
    {0, ListText::MyButtonComputer, {38}},
    {3, ListText::MyButtonHdmi, {41, 42, 43, 51, 53, 54}},
    {4, ListText::MyButtonComputer2, {37, 39, 40, 42, 44, 45, 49, 50, 53}},
    {22, ListText::MyButtonAvMute, {50, 51, 54}},
    // 42 is left out on purpose: its function 25 bears the common text.
    {25, ListText::MyButtonTemplate, {40, 41, 43, 44, 49, 50, 51, 52, 53, 54}},
    {26, ListText::MyButtonPbyP, {51}},
    {27, ListText::MyButtonMySource, {49, 50, 51, 53, 54}},
    {32, ListText::MyButtonMiuLiveMode, {40, 41, 42, 54}},
    {33, ListText::MyButtonMiuSlideshow, {40, 41, 42, 54}},
    {34, ListText::MyButtonMiuDirectory, {40, 41, 42, 54}},
    {35, ListText::MyButtonMiuMyImage, {40, 41, 42, 54}},
    {36, ListText::MyButtonMiuMessenger, {40, 41, 42, 54}},
    {48, ListText::MyButtonDZoom, {44}},
    {49, ListText::MyButtonDShift, {44}},
    {kOtherFunction, ListText::MyButtonOther, kCodesWithOtherFunction},
};

int TextOfFunction(int code, int modelCode) {
  const auto found = std::ranges::find_if(kFunctionTexts, [&](const FunctionText& function) {
    return function.code == code && function.models.Contains(modelCode);
  });
  return found == std::end(kFunctionTexts) ? ListText::MyButtonBase + code : found->text;
}

// A failed read takes the list out of use.
std::optional<int> ReadFor(CComboBox& list, Reader read, CPjtInterface& projector) {
  const auto value = read(projector);
  list.setEnabled(value.has_value());
  return value;
}

void ShowPosition(CComboBox& list, Reader read, CPjtInterface& projector, int firstValue = 0) {
  if (const auto value = ReadFor(list, read, projector)) list.Select(*value - firstValue);
}

// A refused switch shows the projector's state again.
void UndoIfRefused(CComboBox& list, int result, Reader read, CPjtInterface& projector) {
  if (result != 0) return;
  if (const auto value = read(projector)) list.Select(*value);
}

std::optional<int> ReadMySource(CPjtInterface& projector) {
  unsigned short source = 0;
  // Other than elsewhere, any result but 0 is a success here.
  if (projector.Get(CommandCode::MySource, 0, &projector, &source) == 0) return {};
  return source;
}

}  // namespace

COption5TabDlg::COption5TabDlg(CWnd* parent) : CTabPage(TemplateId::OptionType5, parent) {}

void COption5TabDlg::DoDataExchange() {
  autoSearch_ = &Item<CComboBox>(20364);
  autoKeystone_ = &Item<CComboBox>(20365);
  autoOn_ = &Item<CComboBox>(20366);
  autoOff_.Bind(*this, {.minus = 20367, .slider = 20369, .plus = 20368, .field = 20370});
  myButton1_.list = &Item<CComboBox>(20371);
  myButton2_.list = &Item<CComboBox>(20372);
  mySource_ = &Item<CComboBox>(20374);
  ccDisplay_ = &Item<CComboBox>(20292);
  ccMode_ = &Item<CComboBox>(20293);
  ccChannel_ = &Item<CComboBox>(20294);
}

const NotificationMap& COption5TabDlg::Notifications() const {
  using Self = COption5TabDlg;
  static const NotificationMap map{
      SelChange(20364, &Self::OnCbnSelchangeOpt5Atseacomb),
      SelChange(20365, &Self::OnCbnSelchangeOpt5Atkscomb),
      SelChange(20366, &Self::OnCbnSelchangeOpt5Atoncomb),
      Clicked(20367, &Self::OnBnClickedOpt5Btnatoffneg),
      Clicked(20368, &Self::OnBnClickedOpt5Btnatoffpos),
      SelChange(20371, &Self::OnCbnSelchangeOpt5Mybtn1comb),
      SelChange(20372, &Self::OnCbnSelchangeOpt5Mybtn2comb),
      SelChange(20374, &Self::OnCbnSelchangeOpt5Mysrccomb),
      Clicked(20373, &Self::OnBnClickedOpt5Btnsvc),
      SelChange(20292, &Self::OnCbnSelchangeOth4CcdisplayComb),
      SelChange(20293, &Self::OnCbnSelchangeOth4CcmodeComb),
      SelChange(20294, &Self::OnCbnSelchangeOth4CcchannelComb),
      HScroll(&Self::OnHScroll),
  };
  return map;
}

bool COption5TabDlg::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  UseTemplateMyButtons();
  rows_ = RowSet::Of(Model().ModelCode, kModelRows);
  if (!rows_.Known()) return true;  // the template's rows and lists stay, and nothing is read
  for (std::size_t row = 0; row < std::size(kRowControls); ++row) {
    ShowRow(kRowControls[row], rows_.Has(row));
  }
  for (CComboBox* list : {autoSearch_, autoKeystone_, autoOn_}) FillList(*list, kSwitchTexts);
  autoOff_.SetRange(ParseRange(Model().RangeTexts[RangeIndex::AutoOff], 0, kDefaultAutoOffRange),
                    kAutoOffTicks);
  const CountedList& functions = Model().MyButtonList;
  if (functions.Size() > 0) {
    FillMyButtons({functions.values.data(), static_cast<std::size_t>(functions.Size())});
  }
  const SourceList& sources = Model().MySourceList;
  mySource_->clear();
  for (std::size_t i = 0; i < static_cast<std::size_t>(sources.Size()); ++i) {
    const std::string_view name = NameText(sources.names[i]);
    // The upper half of the word is none of the source's code.
    mySource_->Add(QString::fromUtf8(name), sources.firstValues[i] & 0xFFFF);
  }
  FillList(*ccDisplay_, kCcDisplayTexts);
  FillList(*ccMode_, kCcModeTexts);
  FillList(*ccChannel_, kCcChannels);
  return true;
}

void COption5TabDlg::UseTemplateMyButtons() {
  myButtonCodes_.assign(std::begin(MyButtonTable), std::prev(std::end(MyButtonTable)));
  for (CComboBox* list : {myButton1_.list, myButton2_.list}) {
    for (int i = 0; i < list->count(); ++i) list->setItemData(i, GetMyBtnVal(i));
  }
}

void COption5TabDlg::FillMyButtons(std::span<const int> codes) {
  myButtonCodes_.assign(codes.begin(), codes.end());
  for (CComboBox* list : {myButton1_.list, myButton2_.list}) {
    list->clear();
    for (const int code : codes) {
      list->Add(ListString(TextOfFunction(code, Model().ModelCode)), code);
    }
  }
}

void COption5TabDlg::InitDisp() {
  using P = CPjtInterface;
  if (rows_.Has(AutoSearch)) ShowPosition(*autoSearch_, Read<&P::GetAutoSearch>, *projector);
  if (rows_.Has(AutoKeystone)) ShowPosition(*autoKeystone_, Read<&P::GetAutoKeystone>, *projector);
  if (rows_.Has(AutoOn)) ShowPosition(*autoOn_, Read<&P::GetAutoOn>, *projector);
  if (rows_.Has(AutoOff)) {
    if (const auto value = Read<&P::GetAutoOff>(*projector)) {
      autoOff_.Enable();
      ShowAutoOff(*value);
    } else {
      autoOff_.Disable();
    }
  }
  if (rows_.Has(MyButton1)) ShowMyButton(myButton1_);
  if (rows_.Has(MyButton2)) ShowMyButton(myButton2_);
  if (rows_.Has(MySource)) {
    const auto source = ReadFor(*mySource_, ReadMySource, *projector);
    if (source && !mySource_->SelectValue(*source)) mySource_->Select(-1);
  }
  if (rows_.Has(CcDisplay)) ShowPosition(*ccDisplay_, Read<&P::GetCCDisplay>, *projector);
  if (rows_.Has(CcMode)) ShowPosition(*ccMode_, Read<&P::GetCCMode>, *projector);
  if (rows_.Has(CcChannel)) {
    ShowPosition(*ccChannel_, Read<&P::GetCCChannel>, *projector, kFirstCcChannel);
  }
}

int COption5TabDlg::GetMyBtnIdx(int code) const {
  const auto found = std::ranges::find(myButtonCodes_, code);
  return found == myButtonCodes_.end() ? -1 : static_cast<int>(found - myButtonCodes_.begin());
}

int COption5TabDlg::GetMyBtnVal(int index) const {
  const bool inside = index >= 0 && index < std::ssize(myButtonCodes_);
  return inside ? myButtonCodes_[static_cast<std::size_t>(index)] : -1;
}

void COption5TabDlg::OnCbnSelchangeOpt5Atseacomb() {
  UndoIfRefused(*autoSearch_, projector->SetAutoSearch(autoSearch_->currentIndex()),
                Read<&CPjtInterface::GetAutoSearch>, *projector);
}

void COption5TabDlg::OnCbnSelchangeOpt5Atkscomb() {
  const auto position = static_cast<short>(autoKeystone_->currentIndex());
  UndoIfRefused(*autoKeystone_, projector->SetAutoKeystone(position),
                Read<&CPjtInterface::GetAutoKeystone>, *projector);
}

void COption5TabDlg::OnCbnSelchangeOpt5Atoncomb() {
  UndoIfRefused(*autoOn_, projector->SetAutoPowerOn(autoOn_->currentIndex()),
                Read<&CPjtInterface::GetAutoOn>, *projector);
}

void COption5TabDlg::ShowAutoOff(int value) {
  autoOff_.Show(value);
  autoOff_.current = static_cast<std::int16_t>(value);
}

void COption5TabDlg::StepAutoOff(int (CPjtInterface::*step)(short* value)) {
  short value = 0;
  if (projector->GetAutoOff(&value) != 0 && std::invoke(step, *projector, &value) != 0)
    ShowAutoOff(value);
}

void COption5TabDlg::OnBnClickedOpt5Btnatoffneg() {
  StepAutoOff(&CPjtInterface::DecrementAutoPowerOff);
}

void COption5TabDlg::OnBnClickedOpt5Btnatoffpos() {
  StepAutoOff(&CPjtInterface::IncrementAutoPowerOff);
}

void COption5TabDlg::OnHScroll(CSliderCtrl& slider) {
  if (!autoOff_.Owns(slider)) return;
  const int position = autoOff_.Position();
  if (projector->SetAutoPowerOff(static_cast<short>(position)) != 0) {
    ShowAutoOff(position);
  } else {
    autoOff_.MoveSlider(autoOff_.current);
  }
}

void COption5TabDlg::ShowMyButton(const MyButton& button) {
  short code = 0;
  const bool read = std::invoke(button.get, *projector, &code) != 0;
  button.list->setEnabled(read);
  if (!read || button.list->SelectValue(code)) return;
  // The last entry of these models' lists is the one for assignments that the list does not offer.
  const bool hasOther = kCodesWithOtherFunction.Contains(Model().ModelCode);
  button.list->Select(hasOther ? button.list->count() - 1 : -1);
}

void COption5TabDlg::SendMyButton(const MyButton& button) {
  const auto chosen = button.list->SelectedValue();
  if (!chosen) return;
  short code = 0;
  if (*chosen == kOtherFunction && kCodesWithOtherFunction.Contains(Model().ModelCode)) {
    if (std::invoke(button.get, *projector, &code) != 0) button.list->SelectValue(code);
  } else if (std::invoke(button.set, *projector, static_cast<short>(*chosen)) == 0) {
    // Other than in a refresh, what was read is the position, not a code to look up.
    if (std::invoke(button.get, *projector, &code) != 0) button.list->Select(code);
  }
}

void COption5TabDlg::OnCbnSelchangeOpt5Mybtn1comb() { SendMyButton(myButton1_); }
void COption5TabDlg::OnCbnSelchangeOpt5Mybtn2comb() { SendMyButton(myButton2_); }

void COption5TabDlg::OnCbnSelchangeOpt5Mysrccomb() {
  const auto source = mySource_->SelectedValue();
  if (!source) return;
  if (projector->Set(CommandCode::MySource, static_cast<unsigned short>(*source), projector) != 1) {
    ShowError(ErrorText::MySourceRefused);  // the list keeps the choice until the next refresh
  }
}

void COption5TabDlg::OnBnClickedOpt5Btnsvc() {
  CServiceDlg dialog(this);
  dialog.projector = projector;
  dialog.ModelCode = Model().ModelCode;
  dialog.DoModal();
}

void COption5TabDlg::OnCbnSelchangeOth4CcdisplayComb() {
  projector->SetCCDisplay(ccDisplay_->currentIndex());
}

void COption5TabDlg::OnCbnSelchangeOth4CcmodeComb() {
  projector->SetCCMode(ccMode_->currentIndex());
}

void COption5TabDlg::OnCbnSelchangeOth4CcchannelComb() {
  projector->SetCCChannel(ccChannel_->currentIndex() + kFirstCcChannel);
}
