#include <array>

#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

using namespace ControlId;

using namespace tmpl;
using enum RowPlace;

// The two pages that open the pop-ups differ in a caption and in the row after sharpness.
constexpr std::array<RowTemplate, 10> PictureRows(const char* brightness, const RowTemplate& own) {
  return {
      SliderRow(Left, Label(20534, brightness), 20535,
                {Picture::BrightnessMinus, Picture::Brightness, Picture::BrightnessPlus,
                 Picture::BrightnessField}),
      SliderRow(Left, Label(20536, "74;Contrast\t:"), 20537,
                {Picture::ContrastMinus, Picture::Contrast, Picture::ContrastPlus,
                 Picture::ContrastField}),
      Row(Left, Label(20468, "41;Gamma\t\t:"), Colon(20476), Combo(Picture::Gamma),
          Button(Picture::CustomGamma, "120;Custom...")),
      Row(Left, Label(20593, "115;Color Temp\t:"), Colon(20594), Combo(Picture::ColorTemp),
          Button(Picture::CustomColorTemp, "120;Custom...")),
      SliderRow(Left, Label(20595, "116;Color\t\t:"), 20596,
                {Picture::ColorMinus, Picture::Color, Picture::ColorPlus, Picture::ColorField}),
      SliderRow(Left, Label(20597, "117;Tint\t\t:"), 20598,
                {Picture::TintMinus, Picture::Tint, Picture::TintPlus, Picture::TintField}),
      SliderRow(Left, Label(20599, "118;Sharpness\t:"), 20600,
                {Picture::SharpnessMinus, Picture::Sharpness, Picture::SharpnessPlus,
                 Picture::SharpnessField}),
      own,
      Row(Left, Label(20601, "119;My Memory\t:"), Colon(20602), Combo(Picture::MyMemory),
          Button(Picture::MyMemoryExecute, "17;Execute")),
      Row(Bottom, Label(20487, "51;Reset\t\t:"), Colon(20423), Combo(Picture::Reset),
          Button(Picture::ResetExecute, "17;Execute")),
  };
}

constexpr auto kPictureType5Rows = PictureRows(
    "73;Brightness\t:",
    Row(Left, Label(20621, "128;Active Iris\t:"), Colon(20622), Combo(Picture::ActiveIris)));
constexpr auto kPicRows = PictureRows(
    "1073;Brightness\t:", Row(Left, Label(20146, "60;Progressive\t:"), Colon(20392), Combo(20145)));

// A row of a custom pop-up, without a colon and with its own Reset button.
constexpr RowTemplate CustomRow(const ControlTemplate& label, const SliderIds& ids, int reset) {
  return Row(Left, label, Minus(ids.minus), Slider(ids.slider), Plus(ids.plus), Field(ids.field),
             Button(reset, "1026;Reset"));
}

constexpr RowTemplate kGammaRows[] = {
    Row(Left, Label(20660, "1029;User Gamma Pattern"), Combo(20158)),
    CustomRow(Label(20661, "1030;User Gamma Point 1"), {20160, 20181, 20161, 20162}, 20336),
    CustomRow(Label(20662, "1031;User Gamma Point 2"), {20163, 21024, 20164, 20165}, 20337),
    CustomRow(Label(20663, "1032;User Gamma Point 3"), {20166, 21025, 20167, 20168}, 20338),
    CustomRow(Label(20664, "1033;User Gamma Point 4"), {20169, 21026, 20170, 20171}, 20339),
    CustomRow(Label(20665, "1034;User Gamma Point 5"), {20172, 21027, 20173, 20174}, 20340),
    CustomRow(Label(20666, "1035;User Gamma Point 6"), {20175, 21028, 20176, 20177}, 20341),
    CustomRow(Label(20667, "1036;User Gamma Point 7"), {20178, 21029, 20179, 20180}, 20342),
    CustomRow(Label(20668, "1037;User Gamma Point 8"), {20182, 21030, 20183, 20184}, 20343),
    Row(Bottom, Close(1, "27;Close")),
};

constexpr RowTemplate kColorTempRows[] = {
    Row(Left, Label(20660, "1029;User Gamma Pattern"), Combo(20158)),
    CustomRow(Label(20661, "1020;Color Temp Gain R"), {20182, 20181, 20188, 20194}, 20334),
    CustomRow(Label(20662, "1021;Color Temp Gain G"), {20183, 21024, 20189, 20195}, 20335),
    CustomRow(Label(20663, "1022;Color Temp Gain B"), {20184, 21025, 20190, 20196}, 20336),
    CustomRow(Label(20664, "1023;Color Temp Offset R"), {20185, 21026, 20191, 20197}, 20337),
    CustomRow(Label(20665, "1024;Color Temp Offset G"), {20186, 21027, 20192, 20198}, 20338),
    CustomRow(Label(20666, "1025;Color Temp Offset B"), {20187, 21028, 20193, 20199}, 20339),
    Row(Bottom, Close(1, "27;Close")),
};

}  // namespace

const DialogTemplate kPictureType5Template =
    PageTemplate(TemplateId::PictureType5, kPictureType5Rows);

const DialogTemplate kPicTemplate = PageTemplate(TemplateId::Pic, kPicRows);

const DialogTemplate kGammaTemplate{
    .number = TemplateId::Gamma, .caption = "28;Gamma -Custom-", .rows = kGammaRows};

const DialogTemplate kColorTempTemplate{
    .number = TemplateId::ColorTemp, .caption = "19;Color Temp -Custom-", .rows = kColorTempRows};

}  // namespace AdvancedControl
