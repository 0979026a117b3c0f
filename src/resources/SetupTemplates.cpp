#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::SetupType5;

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kSetupType5Rows[] = {
    Row(Left, Label(20601, "18;Auto Keystone\t:"), Colon(20631),
        Button(Id::AutoKeystone, "17;Execute")),
    SliderRow(Left, Label(20602, "137;Keystone V\t:"), 20632,
              {Id::KeystoneVMinus, Id::KeystoneV, Id::KeystoneVPlus, Id::KeystoneVField}),
    SliderRow(Left, Label(20603, "138;Keystone H\t:"), 20633,
              {Id::KeystoneHMinus, Id::KeystoneH, Id::KeystoneHPlus, Id::KeystoneHField}),
    Row(Left, Label(20604, "75;Whisper\t\t:"), Colon(20634), Combo(Id::Whisper)),
    Row(Left, Label(20605, "40;Mirror\t\t:"), Colon(20635), Combo(Id::Mirror)),
    SliderRow(Left, Label(20606, "1;Volume\t\t:"), 20636,
              {Id::VolumeMinus, Id::Volume, Id::VolumePlus, Id::VolumeField}),
    Row(Left, Label(20607, "Current Input:"), Field(Id::CurrentInput)),
    Row(Left, Label(20608, "5;Speaker"), Colon(20638), Combo(Id::Speaker)),
    SliderRow(Left, Label(20609, "194;D-Zoom"), 20639,
              {Id::DZoomMinus, Id::DZoom, Id::DZoomPlus, Id::DZoomField}),
    Row(Left, Label(20610, "195;D-Shift"), Colon(20640), Text(20611, "52;V"),
        Arrow(Id::DShiftVPlus, "↑"), Arrow(Id::DShiftVMinus, "↓"), Field(Id::DShiftVField)),
    Row(Left, Text(20612, "53;H"), Arrow(Id::DShiftHMinus, "←"), Arrow(Id::DShiftHPlus, "→"),
        Field(Id::DShiftHField)),
    Row(Bottom, Label(20487, "51;Reset\t\t:"), Colon(20423), Combo(Id::Reset),
        Button(Id::ResetExecute, "17;Execute")),

    Row(Right, Label(20613, "139;Audio RGB1\t\t:"), Colon(20643), Combo(Id::AudioRgb1)),
    Row(Right, Label(20614, "181;Audio Computer1"), Colon(20644), Combo(Id::AudioComputer1)),
    Row(Right, Label(20615, "140;Audio RGB2\t\t:"), Colon(20645), Combo(Id::AudioRgb2)),
    Row(Right, Label(20616, "182;Audio Computer2"), Colon(20646), Combo(Id::AudioComputer2)),
    Row(Right, Label(20617, "183;Audio HDMI\t\t:"), Colon(20647), Combo(Id::AudioHdmi)),
    Row(Right, Label(20618, "141;Audio Video\t\t:"), Colon(20648), Combo(Id::AudioVideo)),
    Row(Right, Label(20619, "142;Audio S-Video\t\t:"), Colon(20649), Combo(Id::AudioSVideo)),
    Row(Right, Label(20620, "143;Audio Component\t:"), Colon(20650), Combo(Id::AudioComponent)),
    Row(Right, Label(20621, "144;Audio MIU\t\t:"), Colon(20651), Combo(Id::AudioMiu)),
    Row(Right, Label(20622, "184;HDMI Audio\t\t:"), Colon(20652), Combo(Id::HdmiAudio)),
    Row(Right, Label(20623, "205;Standby Mode"), Colon(20653), Combo(Id::StandbyMode)),
    Row(Right, Label(20624, "207;Monitor Out-RGB1"), Colon(20654), Combo(Id::MonitorOutRgb1)),
    Row(Right, Label(20625, "197;Monitor Out-Computer1"), Colon(20655),
        Combo(Id::MonitorOutComputer1)),
    Row(Right, Label(20626, "208;Monitor Out-RGB2"), Colon(20656), Combo(Id::MonitorOutRgb2)),
    Row(Right, Label(20627, "198;Monitor Out-Computer2"), Colon(20657),
        Combo(Id::MonitorOutComputer2)),
    Row(Right, Label(20628, "199;Monitor Out-HDMI"), Colon(20658), Combo(Id::MonitorOutHdmi)),
    Row(Right, Label(20629, "200;Monitor Out-Component"), Colon(20659),
        Combo(Id::MonitorOutComponent)),
    Row(Right, Label(20630, "201;Monitor Out-S-Video"), Colon(20660), Combo(Id::MonitorOutSVideo)),
    Row(Right, Label(20661, "202;Monitor Out-Video"), Colon(20662), Combo(Id::MonitorOutVideo)),
    Row(Right, Label(20663, "203;Monitor Out-MIU"), Colon(20664), Combo(Id::MonitorOutMiu)),
    Row(Right, Label(20665, "204;Monitor Out-Standby"), Colon(20666), Combo(Id::MonitorOutStandby)),
};

}  // namespace

const DialogTemplate kSetupType5Template = PageTemplate(TemplateId::SetupType5, kSetupType5Rows);

}  // namespace AdvancedControl
