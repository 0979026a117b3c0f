#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kSetupRows[] = {
    SliderRow(Left, Label(20601, "73;Brightness\t:"), 20701, {20078, 20079, 20080, 20081}),
    SliderRow(Left, Label(20602, "74;Contrast\t:"), 20702, {20082, 20083, 20084, 20085}),
    Row(Left, Label(20603, "48;Position\t\t:"), Colon(20703), Text(20604, "52;V"),
        Arrow(20087, "↑"), Arrow(20089, "↓"), Field(20090)),
    Row(Left, Text(20605, "53;H"), Arrow(20086, "←"), Arrow(20088, "→"), Field(20091)),
    SliderRow(Left, Label(20606, "49;H Phase\t\t:"), 20706, {20092, 20093, 20094, 20095}),
    Row(Left, Label(20607, "50;H Size\t\t:"), Colon(20707), Minus(20096), Plus(20098),
        Field(20097)),
    Row(Left, Label(20608, "46;Aspect\t\t:"), Colon(20708), Combo(20099)),
    Row(Bottom, Label(20614, "51;Reset\t\t:"), Colon(20714), Combo(21069),
        Button(21073, "17;Execute")),

    SliderRow(Right, Label(20609, "118;Sharpness\t:"), 20709, {21056, 21057, 21058, 20100}),
    SliderRow(Right, Label(20610, "116;Color\t\t:"), 20710, {21059, 21060, 21061, 20101}),
    SliderRow(Right, Label(20611, "117;Tint\t\t:"), 20711, {21062, 21063, 21064, 20102}),
    SliderRow(Right, Label(20612, "125;Color Bal R\t:"), 20712, {20103, 20104, 20105, 20106}),
    SliderRow(Right, Label(20613, "127;Color Bal B\t:"), 20713, {21042, 21043, 21068, 20107}),
};

constexpr RowTemplate kSetup4Rows[] = {
    SliderRow(Left, Label(20601, "154;Electric Zoom\t:"), 20701, {21049, 21048, 21050, 21118}),
    SliderRow(Left, Label(20602, "77;Keystone\t:"), 20702, {20249, 20250, 20251, 20252}),
    Row(Left, Label(20603, "75;Whisper\t\t:"), Colon(20703), Combo(20242)),
    Row(Left, Label(20604, "40;Mirror\t\t:"), Colon(20704), Combo(20243)),
    SliderRow(Left, Label(20605, "1;Volume\t\t:"), 20705, {20244, 20245, 20246, 20256}),
    Row(Left, Label(20606, "78;Stereo\t\t:"), Colon(20706), Combo(21034)),
    Row(Left, Label(20607, "80;IR Remote\t:"), Colon(20707), Check(20247, "81;Front"),
        Check(20248, "83;Top")),
    Row(Bottom, Label(20613, "51;Reset\t\t:"), Colon(20713), Combo(20254),
        Button(20255, "17;Execute")),

    Row(Right, Label(20608, "139;Audio RGB1\t\t:"), Colon(20708), Combo(21043)),
    Row(Right, Label(20609, "140;Audio RGB2\t\t:"), Colon(20709), Combo(21044)),
    Row(Right, Label(20610, "141;Audio Video\t\t:"), Colon(20710), Combo(21051)),
    Row(Right, Label(20611, "142;Audio S-Video\t\t:"), Colon(20711), Combo(21052)),
    Row(Right, Label(20612, "143;Audio Component\t:"), Colon(20712), Combo(21053)),
};

constexpr RowTemplate kScreenRows[] = {
    Row(Left, Label(20601, "38;Blank\t\t:"), Colon(20701), Combo(21085)),
    Row(Left, Label(20602, "1039;Startup\t\t:"), Colon(20702), Combo(21086)),
    Row(Left, Label(20603, "1129;MyScreen Size\t:"), Colon(20703), Combo(21087)),
    Row(Left, Label(20604, "1130;MyScreen Lock\t:"), Colon(20704), Combo(21088)),
    Row(Left, Label(20605, "132;Menu Position\t:"), Colon(20705), Text(20606, "52;V"),
        Arrow(21089, "↑"), Arrow(21091, "↓"), Field(20021)),
    Row(Left, Text(20607, "53;H"), Arrow(21090, "←"), Arrow(21057, "→"), Field(20022)),
    Row(Left, Label(20608, "131;Message\t:"), Colon(20708), Combo(21092)),
    Row(Bottom, Label(20609, "51;Reset\t\t:"), Colon(20709), Combo(21094),
        Button(21093, "17;Execute")),
};

constexpr RowTemplate kScreen4Rows[] = {
    Row(Left, Label(20601, "76;Language\t:"), Colon(20701), Combo(20226)),
    Row(Left, Label(20602, "132;Menu Position\t:"), Colon(20702), Text(20603, "52;V"),
        Arrow(20227, "↑"), Arrow(20230, "↓"), Field(20231)),
    Row(Left, Text(20604, "53;H"), Arrow(20228, "←"), Arrow(20229, "→"), Field(20232)),
    SliderRow(Left, Label(20605, "133;OSD Bright\t:"), 20705, {20233, 20234, 20235, 20236}),
    Row(Left, Label(20606, "38;Blank\t\t:"), Colon(20706), Combo(20237)),
    Row(Left, Label(20607, "1039;Startup\t\t:"), Colon(20707), Combo(21086)),
    Row(Left, Label(20608, "1130;MyScreen Lock\t:"), Colon(20708), Combo(20238)),
    Row(Left, Label(20609, "131;Message\t:"), Colon(20709), Combo(20239)),
    Row(Bottom, Label(20617, "51;Reset\t\t:"), Colon(20717), Combo(20240),
        Button(20241, "17;Execute")),

    Row(Right, Label(20610, "209;Template"), Colon(20710), Combo(20242)),
    Row(Right, Label(20611, "210;PbyP"), Colon(20711), Combo(20243)),
    Row(Right, Label(20612, "211;PbyP Size"), Colon(20712), Combo(20244)),
    Row(Right, Label(20613, "212;PbyP Sub Source"), Colon(20713), Combo(20245)),
    Row(Right, Label(20614, "213;PbyP Main Area"), Colon(20714), Combo(20246)),
    Row(Right, Label(20615, "214;PbyP Start Area"), Colon(20715), Combo(20247)),
    Row(Right, Label(20616, "215;PbyP Main Source"), Colon(20716), Combo(20248)),
};

}  // namespace

const DialogTemplate kSetupTemplate = PageTemplate(TemplateId::Setup, kSetupRows);

const DialogTemplate kSetup4Template = PageTemplate(TemplateId::Setup4, kSetup4Rows);

const DialogTemplate kScreenTemplate = PageTemplate(TemplateId::Screen, kScreenRows);

const DialogTemplate kScreen4Template = PageTemplate(TemplateId::Screen4, kScreen4Rows);

}  // namespace AdvancedControl
