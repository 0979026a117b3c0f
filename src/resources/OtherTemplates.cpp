#include "resources/AdvancedControlResources.h"
#include "resources/Templates.h"

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate ListRow(int number, const char* caption, int list) {
  return Row(Left, Label(20600 + number, caption), Colon(20700 + number), Combo(list));
}

constexpr RowTemplate kVolume =
    SliderRow(Left, Label(20620, "1;Volume"), 20720, {20130, 20131, 20132, 20133});
constexpr RowTemplate kWhisper = ListRow(21, "75;Whisper", 20134);
constexpr RowTemplate kStereo = ListRow(22, "78;Stereo", 20135);
constexpr RowTemplate kLanguage = ListRow(23, "76;Language", 20136);
constexpr RowTemplate kMenuColor = ListRow(24, "4207;Menu Color", 20137);
constexpr RowTemplate kOneTouch = ListRow(25, "4208;One Touch", 20138);
constexpr RowTemplate kIpRemoteId = ListRow(26, "4209;IP Remote ID", 20139);
constexpr RowTemplate kAutoSearch = ListRow(11, "16;Auto Search", 20121);
constexpr RowTemplate kAutoOff =
    SliderRow(Left, Label(20612, "4210;Auto Off (min)"), 20712, {20122, 20123, 20124, 20125});

constexpr RowTemplate kOptionRows[] = {kVolume,    kStereo,   kLanguage,
                                       kMenuColor, kOneTouch, kIpRemoteId};

constexpr RowTemplate kOption2Rows[] = {kVolume,   kWhisper,   kStereo,   kAutoSearch, kAutoOff,
                                        kLanguage, kMenuColor, kOneTouch, kIpRemoteId};

constexpr RowTemplate kOption3Rows[] = {
    kVolume,
    kWhisper,
    kAutoSearch,
    kAutoOff,
    kLanguage,
    kMenuColor,
    Row(Left, Label(20627, "80;IR Remote"), Colon(20727), Check(20140, "81;Front"),
        Check(20141, "82;Rear")),
};

constexpr RowTemplate kOption4Rows[] = {
    kAutoSearch, ListRow(13, "93;Auto On", 20126),
    kAutoOff,    ListRow(14, "18;Auto Keystone", 20127),
    kOneTouch,   kIpRemoteId,
};

constexpr RowTemplate kPower =
    Row(Left, Label(20630, "4200;Power"), Colon(20730), Button(20100, "4201;Turn On"),
        Button(20101, "4202;Turn Off"), Text(20102));
constexpr RowTemplate kInputSource = ListRow(31, "146;Input Source", 20103);
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

constexpr DialogTemplate Page(int number, std::span<const RowTemplate> rows) {
  return {.number = number, .width = kPageWidth, .height = kPageHeight, .rows = rows};
}

}  // namespace

const DialogTemplate kOptionTemplate = Page(TemplateId::Option, kOptionRows);
const DialogTemplate kOption2Template = Page(TemplateId::Option2, kOption2Rows);
const DialogTemplate kOption3Template = Page(TemplateId::Option3, kOption3Rows);
const DialogTemplate kOption4Template = Page(TemplateId::Option4, kOption4Rows);
const DialogTemplate kOtherTemplate = Page(TemplateId::Other, kOtherRows);
const DialogTemplate kOther4Template = Page(TemplateId::Other4, kOther4Rows);
