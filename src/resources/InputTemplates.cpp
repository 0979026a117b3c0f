#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::InputType5;

using namespace tmpl;
using enum RowPlace;

constexpr const char* kProgressives[] = {"Off", "TV", "FILM"};
constexpr const char* kNoiseReductions[] = {"Low", "Middle", "High"};
constexpr const char* kYcs[] = {"Off", "Movie", "Still Image"};
constexpr const char* kColorSpaces[] = {"Auto", "RGB", "SMPTE240", "REC709", "REC601"};
constexpr const char* kComponents[] = {"Component", "Scart RGB"};
constexpr const char* kVideoFormats[] = {"Auto",     "NTSC",  "PAL",  "SECAM",
                                         "NTSC4.43", "M-PAL", "N-PAL"};
constexpr const char* kM1Ds[] = {"Normal", "Enhanced"};
constexpr const char* kSwitch[] = {"Off", "On"};
constexpr const char* kSyncs[] = {"Sync On G Off", "Sync On G On"};

constexpr RowTemplate kInputType5Rows[] = {
    Row(Left, Label(20500, "60;Progressive\t:"), Colon(20508),
        Combo(Id::Progressive, kProgressives)),
    Row(Left, Label(20498, "1058;Video NR\t:"), Colon(20506), Combo(Id::VideoNr, kNoiseReductions)),
    Row(Left, Label(20497, "57;3D-YCS\t\t:"), Colon(20505), Combo(Id::ThreeDYcs, kYcs)),
    Row(Left, Label(20494, "54;Color Space\t:"), Colon(20502), Combo(Id::ColorSpace, kColorSpaces)),
    Row(Left, Label(20522, "1055;Component\t:"), Colon(20523), Combo(Id::Component, kComponents)),
    Row(Left, Label(20526, "1068;C-Video Format\t:"), Colon(20527),
        Combo(Id::CVideoFormat, kVideoFormats)),
    Row(Left, Label(20528, "1069;S-Video Format\t:"), Colon(20529),
        Combo(Id::SVideoFormat, kVideoFormats)),
    Row(Left, Label(20427, "187;HDMI"), Colon(20429), Combo(Id::Hdmi, kSyncs)),

    Row(Right, Label(20530, "70;M1-D\t:"), Colon(20531), Combo(Id::M1D, kM1Ds)),
    Row(Right, Label(20499, "59;Frame Lock\t:"), Colon(20507), Combo(Id::FrameLock, kSwitch)),
    Row(Right, Label(20433, "1188;Frame Lock-RGB1"), Colon(20434),
        Combo(Id::FrameLockRgb1, kSyncs)),
    Row(Right, Label(20425, "185;Frame Lock-Computer1"), Colon(20430),
        Combo(Id::FrameLockComputer1, kSyncs)),
    Row(Right, Label(20435, "1189;Frame Lock-RGB2"), Colon(20436),
        Combo(Id::FrameLockRgb2, kSyncs)),
    Row(Right, Label(20426, "186;Frame Lock-Computer2"), Colon(20431),
        Combo(Id::FrameLockComputer2, kSyncs)),
    Row(Right, Label(20428, "1190;Frame Lock-HDMI"), Colon(20432),
        Combo(Id::FrameLockHdmi, kSyncs)),
    Row(Right, Label(20390, "1071;RGB IN-1\t:"), Colon(20532), Combo(Id::RgbIn1, kSyncs)),
    Row(Right, Label(20392, "179;Computer in-1"), Colon(20534), Combo(Id::ComputerIn1, kSyncs)),
    Row(Right, Label(20391, "1072;RGB IN-2\t:"), Colon(20533), Combo(Id::RgbIn2, kSyncs)),
    Row(Right, Label(20393, "180;Computer in-2"), Colon(20535), Combo(Id::ComputerIn2, kSyncs)),
};

}  // namespace

const DialogTemplate kInputType5Template = PageTemplate(TemplateId::InputType5, kInputType5Rows);

}  // namespace AdvancedControl
