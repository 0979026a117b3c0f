#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Status;

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kRows[] = {
    Row(Left, Label(20000, "145;Power Status   "), Colon(20642), Text(Id::Power)),
    Row(Left, Label(20001, "146;Input Source   "), Colon(20643), Text(20009)),
    Row(Left, Label(20002, "147;Error Status    "), Colon(20644), Text(Id::Error)),
    Row(Left, Label(20003, "148;Blank On/Off   "), Colon(20645), Text(20011)),
    Row(Left, Label(20004, "149;Mute           "), Colon(20646), Text(20012)),
    Row(Left, Label(20005, "150;Freeze         "), Colon(20647), Text(20013)),
    Row(Left, Label(20006, "151;Lamp Time      "), Colon(20648), Text(Id::LampTime)),
    Row(Left, Label(20007, "152;Filter Time    "), Colon(20649), Text(20015)),
    Row(Bottom, Label(20077, "51;Reset\t\t:"), Colon(20641), Combo(Id::Reset),
        Button(20018, "17;Execute")),
};

}  // namespace

const DialogTemplate kStatusTemplate = PageTemplate(TemplateId::Status, kRows);

}  // namespace AdvancedControl
