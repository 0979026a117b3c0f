#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"
#include "settings/setup/ScreenLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kOffOn = Numbered(ListText::StartupOff, ListText::StartupOn);
constexpr auto kImageMirrors =
    Numbered(ListText::ImageMirrorNormal, ListText::ImageMirrorHInverse,
             ListText::ImageMirrorVInverse, ListText::ImageMirrorHVInverse);
constexpr auto kPinPInputs =
    Numbered(ListText::PinPInputVideo, ListText::PinPInputSVideo, ListText::PinPInputComponent);

// Model 71 lacks the row, but the value may have been set at the projector and can be reset.
constexpr ResetEntry kResets[] = {{ListText::Keystone, Op::ExecKeyStoneReset}};

constexpr ValueRow Keystone() {
  ValueRow row =
      CentredSlider("image.keystone", 77, {21046, 21045, 21047, 21117}, CommandCode::Keystone,
                    ErrorText::KeystoneRefused, kNoRangeText, Range{-128, 127}, 16);
  row.on = NotOn(71);
  return row;
}

constexpr PageRow kRows[] = {
    Keystone(),
    ListRow{"image.blank", 38, 20112, kBlanks, Get(CommandCode::BlankColor),
            Named(Op::SetBlankColor), kBlankRules},
    ListRow{"image.startup", 39, 20113, kOffOn, Get(CommandCode::ImageStartup),
            Named(Op::SetStartup)},
    ListRow{"image.mirror", 40, 20114, kImageMirrors, Get(CommandCode::ImageMirror),
            Named(Op::SetMirror)},
    ListRow{"image.pin-p-input", 42, 20116, kPinPInputs, Get(CommandCode::ImagePinPInput),
            Named(Op::SetPinPInput)},
    ListRow{"image.pin-p-position", 43, 20117, kPinPPositions, Get(CommandCode::PinPPosition),
            Named(Op::SetPinPPosition)},
    ListRow{"image.pin-p-audio", 44, 20118, kPinPAudios, Get(CommandCode::ImagePinPAudio),
            Named(Op::SetPinPAudio)},
    ListRow{"image.pin-p-size", 45, 20119, kPinPSizes, Get(CommandCode::ImagePinPSize),
            Named(Op::SetPinPSize)},
    ListRow{"image.gamma", 41, 20115, GammaEntries, Get(CommandCode::Gamma), Named(Op::SetGamma),
            kGammaRules},
    // These projectors set the colour temperature with gamma's code, but report it with its own
    // code.
    ListRow{"image.color-temp",
            115,
            20121,
            ColorTempEntries,
            Get(CommandCode::ColorTemp),
            Set(CommandCode::Gamma),
            {.error = ErrorText::ImageColorTempRefused, .emptyIsNotRead = true}},
    ResetRow{"image.reset", 20120, 20643, kResets},
};

}  // namespace

constinit const PageTable kImageRows{.rows = kRows};

}  // namespace AdvancedControl
