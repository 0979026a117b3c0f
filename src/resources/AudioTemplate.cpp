#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kRows[] = {
    SliderRow(Left, Label(20601, "1;Volume\t\t:"), 20621, {20345, 20347, 20346, 20355}),
    SliderRow(Left, Label(20602, "2;Treble\t\t:"), 20622, {20348, 20350, 20349, 20315}),
    SliderRow(Left, Label(20603, "3;Base\t\t:"), 20623, {20351, 20353, 20352, 20316}),
    Row(Left, Label(20604, "4;SRS WOW\t:"), Colon(20624), Combo(20381)),
    Row(Left, Label(20605, "5;Speaker\t\t:"), Colon(20625), Combo(20354)),

    Row(Right, Label(20606, "1006;Audio RGB1"), Colon(20626), Combo(20356)),
    Row(Right, Label(20607, "181;Audio Computer1"), Colon(20627), Combo(20365)),
    Row(Right, Label(20608, "1007;Audio RGB2"), Colon(20628), Combo(20358)),
    Row(Right, Label(20609, "182;Audio Computer2"), Colon(20629), Combo(20366)),
    Row(Right, Label(20610, "1008;Audio M1-D"), Colon(20630), Combo(20359)),
    Row(Right, Label(20611, "1183;Audio HDMI"), Colon(20631), Combo(20367)),
    Row(Right, Label(20612, "1009;Audio Video"), Colon(20632), Combo(20360)),
    Row(Right, Label(20613, "1010;Audio S-Video"), Colon(20633), Combo(20361)),
    Row(Right, Label(20614, "1011;Audio Component"), Colon(20634), Combo(20362)),
    Row(Right, Label(20615, "12;Audio MIU"), Colon(20635), Combo(20363)),
    Row(Right, Label(20616, "206;Audio Out Standby"), Colon(20636), Combo(20368)),
    Row(Right, Label(20617, "184;HDMI Audio"), Colon(20637), Combo(20364)),
};

}  // namespace

const DialogTemplate kAudioType5Template = PageTemplate(TemplateId::AudioType5, kRows);

}  // namespace AdvancedControl
