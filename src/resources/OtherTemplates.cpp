#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kPower =
    Row(Left, Label(20630, "4200;Power"), Colon(20730),
        Button(ControlId::Other::PowerOn, "4201;Turn On"),
        Button(ControlId::Other::PowerOff, "4202;Turn Off"), Text(ControlId::Other::Power));
constexpr RowTemplate kInputSource = ListRow(31, "146;Input Source", ControlId::Other::InputSource);
constexpr RowTemplate kBlank = ListRow(32, "148;Blank On/Off", 20104);
constexpr RowTemplate kMute = ListRow(33, "149;Mute", 20105);
constexpr RowTemplate kFreeze = ListRow(34, "150;Freeze", 20106);

constexpr RowTemplate kOtherRows[] = {kPower, kInputSource, kBlank, kMute, kFreeze};

constexpr RowTemplate kOther4Rows[] = {
    kPower,
    kInputSource,
    kBlank,
    kMute,
    kFreeze,
    ListRow(35, "4203;Lens Lock", 20107),
    ListRow(36, "4204;Lens Type", 20108),
    ListRow(37, "4205;Screen Type", 20109),
    ListRow(38, "4206;Picture Position", 20110),
};

}  // namespace

const DialogTemplate kOtherTemplate = PageTemplate(TemplateId::Other, kOtherRows);
const DialogTemplate kOther4Template = PageTemplate(TemplateId::Other4, kOther4Rows);

}  // namespace AdvancedControl
