#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::AudioType5;

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kRows[] = {
    SliderRow(Left, Label(20601, "1;Volume\t\t:"), 20621,
              {Id::VolumeMinus, Id::Volume, Id::VolumePlus, Id::VolumeField}),
    SliderRow(Left, Label(20602, "2;Treble\t\t:"), 20622,
              {Id::TrebleMinus, Id::Treble, Id::TreblePlus, Id::TrebleField}),
    SliderRow(Left, Label(20603, "3;Base\t\t:"), 20623,
              {Id::BassMinus, Id::Bass, Id::BassPlus, Id::BassField}),
    Row(Left, Label(20604, "4;SRS WOW\t:"), Colon(20624), Combo(Id::SrsWow)),
    Row(Left, Label(20605, "5;Speaker\t\t:"), Colon(20625), Combo(Id::Speaker)),

    Row(Right, Label(20606, "1006;Audio RGB1"), Colon(20626), Combo(Id::Rgb1)),
    Row(Right, Label(20607, "181;Audio Computer1"), Colon(20627), Combo(Id::Computer1)),
    Row(Right, Label(20608, "1007;Audio RGB2"), Colon(20628), Combo(Id::Rgb2)),
    Row(Right, Label(20609, "182;Audio Computer2"), Colon(20629), Combo(Id::Computer2)),
    Row(Right, Label(20610, "1008;Audio M1-D"), Colon(20630), Combo(Id::M1D)),
    Row(Right, Label(20611, "1183;Audio HDMI"), Colon(20631), Combo(Id::Hdmi)),
    Row(Right, Label(20612, "1009;Audio Video"), Colon(20632), Combo(Id::Video)),
    Row(Right, Label(20613, "1010;Audio S-Video"), Colon(20633), Combo(Id::SVideo)),
    Row(Right, Label(20614, "1011;Audio Component"), Colon(20634), Combo(Id::Component)),
    Row(Right, Label(20615, "12;Audio MIU"), Colon(20635), Combo(Id::Miu)),
    Row(Right, Label(20616, "206;Audio Out Standby"), Colon(20636), Combo(Id::OutStandby)),
    Row(Right, Label(20617, "184;HDMI Audio"), Colon(20637), Combo(Id::HdmiAudio)),
};

}  // namespace

const DialogTemplate kAudioType5Template = PageTemplate(TemplateId::AudioType5, kRows);

}  // namespace AdvancedControl
