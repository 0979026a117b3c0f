#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

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

}  // namespace

const DialogTemplate kOptionTemplate = PageTemplate(TemplateId::Option, kOptionRows);
const DialogTemplate kOption2Template = PageTemplate(TemplateId::Option2, kOption2Rows);
const DialogTemplate kOption3Template = PageTemplate(TemplateId::Option3, kOption3Rows);
const DialogTemplate kOption4Template = PageTemplate(TemplateId::Option4, kOption4Rows);

}  // namespace AdvancedControl
