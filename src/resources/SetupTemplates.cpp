#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kSetupType5Rows[] = {
    Row(Left, Label(20601, "18;Auto Keystone\t:"), Colon(20631), Button(20305, "17;Execute")),
    SliderRow(Left, Label(20602, "137;Keystone V\t:"), 20632, {20308, 20310, 20309, 20314}),
    SliderRow(Left, Label(20603, "138;Keystone H\t:"), 20633, {20312, 20311, 20313, 20141}),
    Row(Left, Label(20604, "75;Whisper\t\t:"), Colon(20634), Combo(20315)),
    Row(Left, Label(20605, "40;Mirror\t\t:"), Colon(20635), Combo(20316)),
    SliderRow(Left, Label(20606, "1;Volume\t\t:"), 20636, {20318, 20317, 20319, 20142}),
    Row(Left, Label(20607, "Current Input:"), Field(20337)),
    Row(Left, Label(20608, "5;Speaker"), Colon(20638), Combo(20321)),
    SliderRow(Left, Label(20609, "194;D-Zoom"), 20639, {20331, 20332, 20333, 20143}),
    Row(Left, Label(20610, "195;D-Shift"), Colon(20640), Text(20611, "52;V"), Arrow(20335, "↑"),
        Arrow(20336, "↓"), Field(20144)),
    Row(Left, Text(20612, "53;H"), Arrow(20334, "←"), Arrow(20350, "→"), Field(20145)),
    Row(Bottom, Label(20487, "51;Reset\t\t:"), Colon(20423), Combo(20327),
        Button(20328, "17;Execute")),

    Row(Right, Label(20613, "139;Audio RGB1\t\t:"), Colon(20643), Combo(20320)),
    Row(Right, Label(20614, "181;Audio Computer1"), Colon(20644), Combo(20369)),
    Row(Right, Label(20615, "140;Audio RGB2\t\t:"), Colon(20645), Combo(20322)),
    Row(Right, Label(20616, "182;Audio Computer2"), Colon(20646), Combo(20370)),
    Row(Right, Label(20617, "183;Audio HDMI\t\t:"), Colon(20647), Combo(20329)),
    Row(Right, Label(20618, "141;Audio Video\t\t:"), Colon(20648), Combo(20323)),
    Row(Right, Label(20619, "142;Audio S-Video\t\t:"), Colon(20649), Combo(20324)),
    Row(Right, Label(20620, "143;Audio Component\t:"), Colon(20650), Combo(20325)),
    Row(Right, Label(20621, "144;Audio MIU\t\t:"), Colon(20651), Combo(20326)),
    Row(Right, Label(20622, "184;HDMI Audio\t\t:"), Colon(20652), Combo(20330)),
    Row(Right, Label(20623, "205;Standby Mode"), Colon(20653), Combo(20368)),
    Row(Right, Label(20624, "207;Monitor Out-RGB1"), Colon(20654), Combo(20371)),
    Row(Right, Label(20625, "197;Monitor Out-Computer1"), Colon(20655), Combo(20360)),
    Row(Right, Label(20626, "208;Monitor Out-RGB2"), Colon(20656), Combo(20372)),
    Row(Right, Label(20627, "198;Monitor Out-Computer2"), Colon(20657), Combo(20361)),
    Row(Right, Label(20628, "199;Monitor Out-HDMI"), Colon(20658), Combo(20362)),
    Row(Right, Label(20629, "200;Monitor Out-Component"), Colon(20659), Combo(20363)),
    Row(Right, Label(20630, "201;Monitor Out-S-Video"), Colon(20660), Combo(20364)),
    Row(Right, Label(20661, "202;Monitor Out-Video"), Colon(20662), Combo(20365)),
    Row(Right, Label(20663, "203;Monitor Out-MIU"), Colon(20664), Combo(20366)),
    Row(Right, Label(20665, "204;Monitor Out-Standby"), Colon(20666), Combo(20367)),
};

}  // namespace

const DialogTemplate kSetupType5Template = PageTemplate(TemplateId::SetupType5, kSetupType5Rows);

}  // namespace AdvancedControl
