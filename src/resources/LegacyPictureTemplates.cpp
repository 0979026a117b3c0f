#include "resources/Templates.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate PlacedListRow(RowPlace place, const ControlTemplate& label, int colon,
                                    int list) {
  return Row(place, label, Colon(colon), Combo(list));
}

constexpr RowTemplate ExecuteRow(RowPlace place, const ControlTemplate& label, int colon, int list,
                                 int button) {
  return Row(place, label, Colon(colon), Combo(list), Button(button, "17;Execute"));
}

// The control numbers of a position's two rows.
struct ArrowIds {
  int up, down, left, right, fieldV, fieldH;
};
constexpr RowTemplate PositionV(const ArrowIds& ids) {
  return Row(Left, Label(20609, "48;Position\t\t:"), Colon(20709), Text(20610, "52;V"),
             Arrow(ids.up, "↑"), Arrow(ids.down, "↓"), Field(ids.fieldV));
}
constexpr RowTemplate PositionH(const ArrowIds& ids) {
  return Row(Left, Text(20611, "53;H"), Arrow(ids.left, "←"), Arrow(ids.right, "→"),
             Field(ids.fieldH));
}

constexpr RowTemplate FieldRow(const ControlTemplate& label, int colon, int minus, int field,
                               int plus) {
  return Row(Left, label, Colon(colon), Minus(minus), Plus(plus), Field(field));
}

constexpr ArrowIds kImage4Arrows{20202, 20204, 20201, 20203, 20205, 20206};
constexpr ArrowIds kPicture2Arrows{21054, 21055, 21052, 21053, 20021, 20022};
constexpr ArrowIds kPicture22Arrows{20031, 20033, 20034, 20032, 20045, 20044};

constexpr RowTemplate kPicture1Rows[] = {
    PlacedListRow(Left, Label(20601, "41;Gamma\t\t:"), 20701, 21045),
    SliderRow(Left, Label(20602, "121;Custom Gamma\t:"), 20702, {20801, 21047, 20802, 21121}),
    PlacedListRow(Left, Label(20603, "115;Color Temp\t:"), 20703, 21049),
    PlacedListRow(Left, Label(20604, "122;Custom User R\t:"), 20704, 21050),
    PlacedListRow(Left, Label(20605, "123;Custom User G\t:"), 20705, 21051),
    PlacedListRow(Left, Label(20606, "124;Custom User B\t:"), 20706, 21052),
    SliderRow(Right, Label(20607, "125;Color Bal R\t:"), 20707, {20803, 21067, 20804, 21122}),
    SliderRow(Right, Label(20608, "126;Color Bal G\t:"), 20708, {20805, 21039, 20806, 21123}),
    SliderRow(Right, Label(20609, "127;Color Bal B\t:"), 20709, {20807, 21042, 20808, 21124}),
    SliderRow(Right, Label(20610, "118;Sharpness\t:"), 20710, {20809, 21055, 20810, 21125}),
    SliderRow(Right, Label(20611, "116;Color\t\t:"), 20711, {20811, 21058, 20812, 21126}),
    SliderRow(Right, Label(20612, "117;Tint\t\t:"), 20712, {20813, 21061, 20814, 21127}),
    ExecuteRow(Right, Label(20613, "119;My Memory\t:"), 20713, 21063, 21064),
    ExecuteRow(Bottom, Label(20614, "51;Reset\t\t:"), 20714, 21068, 21069),
};

constexpr RowTemplate kPicture12Rows[] = {
    SliderRow(Left, Label(20601, "125;Color Bal R\t:"), 20701, {20801, 21067, 20802, 21122}),
    SliderRow(Left, Label(20602, "127;Color Bal B\t:"), 20702, {20803, 21042, 20804, 21124}),
    SliderRow(Left, Label(20603, "118;Sharpness\t:"), 20703, {20805, 21055, 20806, 21125}),
    SliderRow(Left, Label(20604, "116;Color\t\t:"), 20704, {20807, 21058, 20808, 21126}),
    SliderRow(Left, Label(20605, "117;Tint\t\t:"), 20705, {20809, 21061, 20810, 21127}),
    ExecuteRow(Bottom, Label(20606, "51;Reset\t\t:"), 20706, 20029, 21069),
};

constexpr RowTemplate kPicture2Rows[] = {
    PositionV(kPicture2Arrows),
    PositionH(kPicture2Arrows),
    SliderRow(Left, Label(20601, "49;H Phase\t\t:"), 20701, {20801, 21071, 20802, 21117}),
    FieldRow(Label(20602, "50;H Size\t\t:"), 20702, 20803, 21109, 20804),
    SliderRow(Left, Label(20603, "47;Over Scan\t:"), 20703, {20805, 21050, 20806, 21115}),
    ExecuteRow(Bottom, Label(20604, "51;Reset\t\t:"), 20704, 21073, 21078),
};

constexpr RowTemplate kPicture22Rows[] = {
    PositionV(kPicture22Arrows),
    PositionH(kPicture22Arrows),
    SliderRow(Left, Label(20601, "49;H Phase\t\t:"), 20701, {20801, 20036, 20802, 20038}),
    FieldRow(Label(20602, "50;H Size\t\t:"), 20702, 20803, 20040, 20804),
    PlacedListRow(Left, Label(20482, "47;Over Scan\t:"), 20489, 20030),
    ExecuteRow(Bottom, Label(20603, "51;Reset\t\t:"), 20703, 20042, 20043),
};

constexpr RowTemplate kImageRows[] = {
    SliderRow(Left, Label(20601, "77;Keystone\t:"), 20701, {21046, 21045, 21047, 21117}),
    PlacedListRow(Left, Label(20602, "38;Blank"), 20702, 20112),
    PlacedListRow(Left, Label(20603, "39;Startup"), 20703, 20113),
    PlacedListRow(Left, Label(20604, "40;Mirror"), 20704, 20114),
    PlacedListRow(Right, Label(20605, "42;P.IN P.Input"), 20705, 20116),
    PlacedListRow(Right, Label(20606, "43;P.IN P.Position\t:"), 20706, 20117),
    PlacedListRow(Right, Label(20607, "44;P.IN P.Audio\t:"), 20707, 20118),
    PlacedListRow(Right, Label(20608, "45;P.IN P.Size\t:"), 20708, 20119),
    PlacedListRow(Right, Label(20609, "41;Gamma"), 20709, 20115),
    PlacedListRow(Right, Label(20610, "115;Color Temp"), 20710, 20121),
    ExecuteRow(Bottom, Label(20611, "51;Reset"), 20711, 20120, 20643),
};

constexpr RowTemplate kImage4Rows[] = {
    PlacedListRow(Left, Label(20601, "46;Aspect\t\t:"), 20701, 20200),
    SliderRow(Left, Label(20602, "47;Over Scan\t:"), 20702, {20046, 20047, 20048, 20049}),
    PositionV(kImage4Arrows),
    PositionH(kImage4Arrows),
    SliderRow(Left, Label(20603, "49;H Phase\t\t:"), 20703, {20207, 20209, 20208, 20210}),
    FieldRow(Label(20604, "50;H Size\t\t:"), 20704, 20211, 20212, 20213),
    Row(Left, Label(20605, "1013;Auto Adjust"), Colon(20705), Button(20215, "17;Execute")),
    ExecuteRow(Bottom, Label(20606, "51;Reset\t\t:"), 20706, 20214, 20216),
};

}  // namespace

const DialogTemplate kPicture1Template = PageTemplate(TemplateId::Picture1, kPicture1Rows);

const DialogTemplate kPicture12Template = PageTemplate(TemplateId::Picture12, kPicture12Rows);

const DialogTemplate kPicture2Template = PageTemplate(TemplateId::Picture2, kPicture2Rows);

const DialogTemplate kPicture22Template = PageTemplate(TemplateId::Picture22, kPicture22Rows);

const DialogTemplate kImageTemplate = PageTemplate(TemplateId::Image, kImageRows);

const DialogTemplate kImage4Template = PageTemplate(TemplateId::Image4, kImage4Rows);

}  // namespace AdvancedControl
