#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

namespace Service = ControlId::Service;

namespace Option = ControlId::OptionType5;

using namespace tmpl;
using enum RowPlace;

constexpr const char* kSwitch[] = {"Off", "On"};
constexpr const char* kMyButtons[] = {"RGB1",      "RGB2",         "M1-D",
                                      "Component", "S-Video",      "Video",
                                      "MIU",       "Information",  "Auto Keystone Execute",
                                      "My Memory", "Picture Mode", "Filter Reset"};
constexpr const char* kChannels[] = {"1", "2", "3", "4"};
constexpr const char* kEnable[] = {"Disable", "Enable"};

constexpr RowTemplate kOptionType5Rows[] = {
    Row(Left, Label(20566, "16;Auto Search\t:"), Colon(20567), Combo(Option::AutoSearch, kSwitch)),
    Row(Left, Label(20568, "18;Auto Keystone\t:"), Colon(20569),
        Combo(Option::AutoKeystone, kSwitch)),
    Row(Left, Label(20570, "93;Auto On\t:"), Colon(20571), Combo(Option::AutoOn, kSwitch)),
    SliderRow(Left, Label(20572, "94;Auto Off\t:"), 20573,
              {Option::AutoOffMinus, Option::AutoOff, Option::AutoOffPlus, Option::AutoOffField}),
    Row(Left, Label(20574, "95;My Button-1\t:"), Colon(20575),
        Combo(Option::MyButton1, kMyButtons)),
    Row(Left, Label(20576, "96;My Button-2\t:"), Colon(20577),
        Combo(Option::MyButton2, kMyButtons)),
    Row(Left, Label(20580, "216;My Source"), Colon(20581), Combo(Option::MySource)),
    Row(Left, Label(20578, "3097;Service\t\t:"), Colon(20579),
        Button(Option::Service, "3098;Service...")),

    Row(Right, Label(20289, "191;C.C. Display"), Colon(20402), Combo(Option::CcDisplay)),
    Row(Right, Label(20290, "192;C.C. Mode"), Colon(20403), Combo(Option::CcMode)),
    Row(Right, Label(20291, "193;C.C. Channel"), Colon(20404), Combo(Option::CcChannel, kChannels)),
};

constexpr RowTemplate kServiceRows[] = {
    Row(Left, Label(20550, "1085;Auto Adjust Enable\t:"), Colon(20551),
        Combo(Service::AutoAdjust, kEnable)),
    Row(Left, Label(20546, "1080;IR Remote\t\t:"), Colon(20547),
        Check(Service::IrFront, "81;Front"), Check(Service::IrRear, "82;Rear"),
        Check(Service::IrTop, "83;Top")),
    Row(Left, Label(20644, "1134;IR Remote Frequency Normal\t:"), Colon(20645),
        Combo(Service::IrFrequencyNormal, kEnable)),
    Row(Left, Label(20646, "1135;IR Remote Frequency High\t:"), Colon(20647),
        Combo(Service::IrFrequencyHigh, kEnable)),
    Row(Left, Label(20631, "196;Focus Lock\t:"), Colon(20632), Combo(Service::FocusLock, kSwitch)),
    Row(Bottom, Close(Service::Close, "27;Close")),
};

}  // namespace

const DialogTemplate kOptionType5Template = PageTemplate(TemplateId::OptionType5, kOptionType5Rows);

const DialogTemplate kServiceTemplate{.number = TemplateId::Service,
                                      .caption = "3136;Service",
                                      .width = 238,
                                      .height = 130,
                                      .rows = kServiceRows};

}  // namespace AdvancedControl
