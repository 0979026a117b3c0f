#include "pages/input/CInputType5Dlg.h"

#include <iterator>

#include "pages/common/CodeList.h"
#include "pages/common/Reader.h"
#include "pages/common/ValueTable.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/CComboBox.h"

namespace {

enum Row : std::size_t {
  Progressive,
  VideoNr,
  Ycs3D,
  ColorSpace,
  Component,
  CVideoFormat,
  SVideoFormat,
  Hdmi,
  M1D,
  FrameLock,
  FrameLockRgb1,
  FrameLockComputer1,
  FrameLockRgb2,
  FrameLockComputer2,
  FrameLockHdmi,
  RgbIn1,
  ComputerIn1,
  RgbIn2,
  ComputerIn2,
};

// clang-format off
constexpr ModelRows kModelRows[] = {
    //                  Progressive M1-D
    //                  |Video NR   |Frame Lock
    //                  ||3D-YCS    || RGB1
    //                  |||Color    || |Computer1
    //                  |||| Space  || ||RGB2
    //                  ||||Comp.   || |||Computer2
    //                  |||||C-Video|| ||||HDMI
    //                  ||||||S-Vid.|| ||||| RGB IN-1
    //                  |||||||HDMI || ||||| |Computer in-1
    //                  ||||||||    || ||||| ||RGB IN-2
    //                  ||||||||    || ||||| |||Computer in-2
    {{30, 31},         "11111110    11 00000 1010"},
    {{32, 33, 36},     "11011110    01 00000 1010"},
    {{37},             "11010110    01 00000 0101"},
    {{38},             "11010110    01 00000 0100"},
    {{39, 45},         "11011110    01 00000 0101"},
    {{40, 44, 49, 50}, "11011110    00 01010 0101"},
    {{41, 43, 51, 54}, "11111111    00 10101 1010"},
    {{42, 53},         "11011111    00 01011 0101"},
    {{46},             "11111110    01 00000 1010"},
    {{52},             "11111110    00 10100 1010"},
};
// clang-format on
static_assert(AreComplete(kModelRows, CInputType5Dlg::kRowCount));

constexpr ModelCodes kCodesWithAutomaticInput{37, 38, 41, 43, 51, 52, 54};

constexpr std::uint16_t kVideoFormatValues[] = {10, 4, 5, 9, 2, 8, 7, ValueTable::kEnd};
constexpr ValueTable kVideoFormats{kVideoFormatValues};

using Entries = std::span<const ListEntry>;

constexpr ListEntry kProgressive[] = {ListText::Off, ListText::ProgressiveTv,
                                      ListText::ProgressiveFilm};
// "Middle" and "Still Image" have numbers of their own, apart from those of the older input pages.
constexpr ListEntry kNoiseReductions[] = {
    ListText::NoiseReductionLow, ListText::NoiseReductionMiddle, ListText::NoiseReductionHigh};
constexpr ListEntry kYcs[] = {ListText::Off, ListText::YcsMovie, ListText::YcsStillImage};
constexpr ListEntry kColorSpaces[] = {ListText::Auto, "RGB", "SMPTE240", "REC709", "REC601"};
constexpr ListEntry kComponents[] = {"Component", "Scart RGB"};
constexpr ListEntry kVideoFormatTexts[] = {ListText::Auto, "NTSC",  "PAL",  "SECAM",
                                           "NTSC4.43",     "M-PAL", "N-PAL"};
constexpr ListEntry kHdmis[] = {ListText::HdmiAuto, ListText::HdmiNormal, ListText::HdmiEnhanced};
constexpr ListEntry kM1Ds[] = {ListText::M1DNormal, ListText::M1DEnhanced};
constexpr ListEntry kSwitch[] = {ListText::SwitchOff, ListText::SwitchOn};
constexpr ListEntry kSyncOnGreen[] = {ListText::SyncOnGreenOff, ListText::SyncOnGreenOn};
constexpr ListEntry kAutomaticInput[] = {ListText::SyncOnGreenOff, ListText::Auto};

struct InputRow {
  int list;
  Entries entries;
  Reader read;
  int firstValue = 0;                  // device value of the first position
  const ValueTable* values = nullptr;  // where the values do not follow each other
  Entries automaticEntries{};          // of the models that detect the input's signal

  constexpr int PositionOf(int value) const {
    return values != nullptr ? values->PositionOf(value) : value - firstValue;
  }
};

using P = CPjtInterface;

// In the order of Row. The RGB and the Computer row of an input are two labels of one setting.
constexpr InputRow kRows[] = {
    {20294, kProgressive, Read<&P::GetProgressive>},
    {20295, kNoiseReductions, Read<&P::GetVideoNrVal>, 1},
    {20296, kYcs, Read<&P::Get3dycs>},
    {20297, kColorSpaces, Read<&P::GetColorSpace>},
    {20298, kComponents, Read<&P::GetComponent>},
    {20299, kVideoFormatTexts, Read<&P::GetVideoFormat, 1>, 0, &kVideoFormats},
    {20300, kVideoFormatTexts, Read<&P::GetVideoFormat, 0>, 0, &kVideoFormats},
    {20307, kHdmis, Read<&P::GetHDMI>},
    {20301, kM1Ds, Read<&P::GetM1d>},
    {20302, kSwitch, Read<&P::GetFrameLock>},
    {20309, kSwitch, Read<&P::GetFrameLockComp1>},
    {20305, kSwitch, Read<&P::GetFrameLockComp1>},
    {20310, kSwitch, Read<&P::GetFrameLockComp2>},
    {20306, kSwitch, Read<&P::GetFrameLockComp2>},
    {20308, kSwitch, Read<&P::GetFrameLockHDMI>},
    {20303, kSyncOnGreen, Read<&P::GetRgbIn, 1>, 2, nullptr, kAutomaticInput},
    {20311, kSyncOnGreen, Read<&P::GetRgbIn, 1>, 2, nullptr, kAutomaticInput},
    {20304, kSyncOnGreen, Read<&P::GetRgbIn, 2>, 2, nullptr, kAutomaticInput},
    {20312, kSyncOnGreen, Read<&P::GetRgbIn, 2>, 2, nullptr, kAutomaticInput},
};
static_assert(std::size(kRows) == CInputType5Dlg::kRowCount);

Entries EntriesOf(const InputRow& row, int modelCode) {
  const bool automatic = kCodesWithAutomaticInput.Contains(modelCode);
  return automatic && !row.automaticEntries.empty() ? row.automaticEntries : row.entries;
}

}  // namespace

CInputType5Dlg::CInputType5Dlg(CWnd* parent) : CTabPage(TemplateId::InputType5, parent) {}

void CInputType5Dlg::DoDataExchange() {
  for (std::size_t row = 0; row < kRowCount; ++row) lists_[row] = &Item<CComboBox>(kRows[row].list);
}

const NotificationMap& CInputType5Dlg::Notifications() const {
  using Self = CInputType5Dlg;
  static const NotificationMap map{
      SelChange(20294, &Self::OnCbnSelchangeInput5ProgComb),
      SelChange(20295, &Self::OnCbnSelchangeInput5VidnrComb),
      SelChange(20296, &Self::OnCbnSelchangeInput53dycsComb),
      SelChange(20297, &Self::OnCbnSelchangeInput5CospsComb),
      SelChange(20298, &Self::OnCbnSelchangeInput5CompoComb),
      SelChange(20299, &Self::OnCbnSelchangeInput5CvidfmtComb),
      SelChange(20300, &Self::OnCbnSelchangeInput5SvidfmtComb),
      SelChange(20307, &Self::OnCbnSelchangeInput5HdmiComb),
      SelChange(20301, &Self::OnCbnSelchangeInput5M1dComb),
      SelChange(20302, &Self::OnCbnSelchangeInput5FrlckCombo),
      SelChange(20309, &Self::OnCbnSelchangeInput5Framelockrgb1Comb),
      SelChange(20305, &Self::OnCbnSelchangeInput5Framelockcomp1Comb),
      SelChange(20310, &Self::OnCbnSelchangeInput5Framelockrgb2Comb),
      SelChange(20306, &Self::OnCbnSelchangeInput5Framelockcomp2Comb),
      SelChange(20308, &Self::OnCbnSelchangeInput5FramelockhdmiComb),
      SelChange(20303, &Self::OnCbnSelchangeInput5Rgbin1Comb),
      SelChange(20311, &Self::OnCbnSelchangeInput5Computerin1Comb),
      SelChange(20304, &Self::OnCbnSelchangeInput5Rgbin2Comb),
      SelChange(20312, &Self::OnCbnSelchangeInput5Computerin2Comb),
  };
  return map;
}

bool CInputType5Dlg::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  rows_ = RowSet::Of(Model().ModelCode, kModelRows);
  if (!rows_.Known()) return true;  // the template's rows and lists stay, and nothing is read
  for (std::size_t row = 0; row < kRowCount; ++row) {
    ShowRow(kRows[row].list, rows_.Has(row));
    if (rows_.Has(row)) FillList(*lists_[row], EntriesOf(kRows[row], Model().ModelCode));
  }
  return true;
}

void CInputType5Dlg::InitDisp() { Init(); }

void CInputType5Dlg::Init() {
  for (std::size_t row = 0; row < kRowCount; ++row) {
    if (!rows_.Has(row)) continue;
    const auto value = kRows[row].read(*projector);
    lists_[row]->setEnabled(value.has_value());
    if (value) lists_[row]->Select(kRows[row].PositionOf(*value));
  }
}

int CInputType5Dlg::VideoFmtToIdx(short value) { return kVideoFormats.PositionOf(value); }

int CInputType5Dlg::Position(std::size_t row) const { return lists_[row]->currentIndex(); }

// Positions are sent as they are, also of lists whose values are mapped when they are read: the
// projector interface maps them back.

void CInputType5Dlg::OnCbnSelchangeInput5ProgComb() {
  projector->SetProgressive(Position(Progressive));
}

void CInputType5Dlg::OnCbnSelchangeInput5VidnrComb() {
  projector->SetVideoNR(Position(VideoNr), 1);
}

void CInputType5Dlg::OnCbnSelchangeInput53dycsComb() { projector->Set3DYCS(Position(Ycs3D)); }

void CInputType5Dlg::OnCbnSelchangeInput5CospsComb() {
  projector->SetColorSpace(Position(ColorSpace));
}

void CInputType5Dlg::OnCbnSelchangeInput5CompoComb() {
  projector->SetComponent(Position(Component));
}

void CInputType5Dlg::OnCbnSelchangeInput5CvidfmtComb() {
  projector->SetCVideoFormat(Position(CVideoFormat));
}

void CInputType5Dlg::OnCbnSelchangeInput5SvidfmtComb() {
  projector->SetSVideoFormat(Position(SVideoFormat));
}

void CInputType5Dlg::OnCbnSelchangeInput5HdmiComb() { projector->SetHDMI(Position(Hdmi)); }

void CInputType5Dlg::OnCbnSelchangeInput5M1dComb() { projector->SetM1D(Position(M1D)); }

void CInputType5Dlg::OnCbnSelchangeInput5FrlckCombo() {
  projector->SetFrameLock(Position(FrameLock));
}

// The flag tells which label the user saw: 1 for RGB, 0 for Computer.

void CInputType5Dlg::OnCbnSelchangeInput5Framelockrgb1Comb() {
  projector->SetFrameLockComp1(Position(FrameLockRgb1), 1);
}

void CInputType5Dlg::OnCbnSelchangeInput5Framelockcomp1Comb() {
  projector->SetFrameLockComp1(Position(FrameLockComputer1), 0);
}

void CInputType5Dlg::OnCbnSelchangeInput5Framelockrgb2Comb() {
  projector->SetFrameLockComp2(Position(FrameLockRgb2), 1);
}

void CInputType5Dlg::OnCbnSelchangeInput5Framelockcomp2Comb() {
  projector->SetFrameLockComp2(Position(FrameLockComputer2), 0);
}

void CInputType5Dlg::OnCbnSelchangeInput5FramelockhdmiComb() {
  projector->SetFrameLockHDMI(Position(FrameLockHdmi));
}

void CInputType5Dlg::OnCbnSelchangeInput5Rgbin1Comb() { projector->SetRgbIn1(Position(RgbIn1), 1); }

void CInputType5Dlg::OnCbnSelchangeInput5Computerin1Comb() {
  projector->SetRgbIn1(Position(ComputerIn1), 0);
}

void CInputType5Dlg::OnCbnSelchangeInput5Rgbin2Comb() { projector->SetRgbIn2(Position(RgbIn2), 1); }

void CInputType5Dlg::OnCbnSelchangeInput5Computerin2Comb() {
  projector->SetRgbIn2(Position(ComputerIn2), 0);
}
