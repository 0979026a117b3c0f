#include "pages/picture/CGammaDlg.h"

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"

namespace {

// The − and + buttons stop here whatever range the model gives its sliders.
constexpr Range kRange{-16, 16};
constexpr int kTicks = 2;

constexpr CustomDialog::RowSpec Point(int index, const tmpl::SliderIds& ids, int resetId) {
  return {ids,
          resetId,
          {static_cast<std::uint16_t>(CommandCode::UserGammaPoint1 + index), 128,
           ErrorText::GammaPointRefusedBase + index}};
}

constexpr CustomDialog::RowSpec kPoints[] = {
    Point(0, {.minus = 20160, .slider = 20181, .plus = 20161, .field = 20162}, 20336),
    Point(1, {.minus = 20163, .slider = 21024, .plus = 20164, .field = 20165}, 20337),
    Point(2, {.minus = 20166, .slider = 21025, .plus = 20167, .field = 20168}, 20338),
    Point(3, {.minus = 20169, .slider = 21026, .plus = 20170, .field = 20171}, 20339),
    Point(4, {.minus = 20172, .slider = 21027, .plus = 20173, .field = 20174}, 20340),
    Point(5, {.minus = 20175, .slider = 21028, .plus = 20176, .field = 20177}, 20341),
    Point(6, {.minus = 20178, .slider = 21029, .plus = 20179, .field = 20180}, 20342),
    Point(7, {.minus = 20182, .slider = 21030, .plus = 20183, .field = 20184}, 20343),
};

}  // namespace

CGammaDlg::CGammaDlg(bool hidePointResets, CWnd* parent)
    : CustomDialog(TemplateId::Gamma, hidePointResets, parent, kPoints, RangeIndex::GammaPoint,
                   kRange, kTicks) {}

const NotificationMap& CGammaDlg::Notifications() const {
  static const NotificationMap map = MakeNotifications(kPoints);
  return map;
}

void CGammaDlg::StepUp(std::size_t point) {
  GenericSliderRow& row = RowAt(point);
  if (row.StepUp(*projector, ButtonBounds()) == Outcome::Refused) ShowError(row.ErrorNumber());
}

void CGammaDlg::StepDown(std::size_t point) {
  GenericSliderRow& row = RowAt(point);
  if (row.StepDown(*projector, ButtonBounds()) == Outcome::Refused) ShowError(row.ErrorNumber());
}

void CGammaDlg::Reset(std::size_t point) {
  const int number = static_cast<int>(point) + 1;
  if (projector->ExecUserGammaPReset(number) == 0) return;
  ShowReset(point, projector->GetUserGammaPoint(number));
}
