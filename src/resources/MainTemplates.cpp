#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kBrightness =
    SliderRow(Left, Label(20600, "73;Brightness"), 20700, {20100, 20101, 20102, 20103});
constexpr RowTemplate kContrast =
    SliderRow(Left, Label(20601, "74;Contrast"), 20701, {20104, 20105, 20106, 20107});
constexpr RowTemplate kAspect = Row(Left, Label(20602, "46;Aspect"), Colon(20702), Combo(20108));
constexpr RowTemplate kMirror = Row(Left, Label(20604, "40;Mirror"), Colon(20704), Combo(20110));
constexpr RowTemplate kReset =
    Row(Bottom, Label(20605, "51;Reset"), Colon(20705), Combo(20111), Button(20112, "17;Execute"));

constexpr RowTemplate kAutoAdjust =
    Row(Left, Label(20610, "1013;Auto Adjust"), Colon(20710), Button(20120, "17;Execute"));
constexpr RowTemplate kAutoSearch =
    Row(Left, Label(20611, "16;Auto Search"), Colon(20711), Combo(20121));
constexpr RowTemplate kAutoOff =
    SliderRow(Left, Label(20612, "4210;Auto Off (min)"), 20712, {20122, 20123, 20124, 20125});

constexpr RowTemplate kMainRows[] = {
    kBrightness, kContrast,
    kAspect,     Row(Left, Label(20603, "75;Whisper"), Colon(20703), Combo(20109)),
    kMirror,     kReset,
};

constexpr RowTemplate kMain2Rows[] = {
    kBrightness,
    kContrast,
    kAspect,
    Row(Left, Label(20603, "41;Gamma"), Colon(20703), Combo(20109)),
    SliderRow(Left, Label(20606, "77;Keystone"), 20706, {20114, 20115, 20116, 20117}),
    kMirror,
    kReset,
};

constexpr RowTemplate kAutoRows[] = {
    kAutoAdjust,
    kAutoSearch,
    kAutoOff,
    Row(Left, Label(20613, "93;Auto On"), Colon(20713), Combo(20126)),
};

constexpr RowTemplate kAuto2Rows[] = {kAutoAdjust, kAutoSearch, kAutoOff};

}  // namespace

const DialogTemplate kMainTemplate = PageTemplate(TemplateId::Main, kMainRows);
const DialogTemplate kMain2Template = PageTemplate(TemplateId::Main2, kMain2Rows);
const DialogTemplate kAutoTemplate = PageTemplate(TemplateId::Auto, kAutoRows);
const DialogTemplate kAuto2Template = PageTemplate(TemplateId::Auto2, kAuto2Rows);

}  // namespace AdvancedControl
