#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

// The gains; on newer models these are in the custom pop-up.
constexpr std::uint16_t kGainR = CommandCode::ColorTempGainR;
constexpr auto kGains = NumberEntries<-32, 32>(CommandCode::kZeroPoint);

constexpr ResetEntry kResets[] = {
    {ListText::ColorBalR, Op::ExecColorBalRReset, 21067},
    {ListText::ColorBalG, Op::ExecColorBalGReset, 21039},
    {ListText::ColorBalB, Op::ExecColorBalBReset, 21042},
    {ListText::Sharpness, Op::ExecSharpnessReset, 21055},
    {ListText::Color, Op::ExecColorReset, 21058},
    {ListText::Tint, Op::ExecTintReset, 21061},
};

constexpr PageRow kRows[] = {
    ListRow{"picture.gamma", 41, 21045, GammaEntries, Get(CommandCode::Gamma), Named(Op::SetGamma),
            kGammaRules},
    CentredSlider("picture.custom-gamma", 121, {20801, 21047, 20802, 21121},
                  CommandCode::CustomGamma, ErrorText::CustomGammaRefused, RangeIndex::CustomGamma),
    // The texts have a different base on this page.
    ListRow{"picture.color-temp", 115, 21049, Picture1ColorTempEntries, Get(CommandCode::ColorTemp),
            Set(CommandCode::ColorTemp), kColorTempRules},
    ListRow{"picture.custom-user-r",
            122,
            21050,
            kGains,
            Get(kGainR),
            Set(kGainR),
            {.error = ErrorText::CustomUserRRefused}},
    ListRow{"picture.custom-user-g",
            123,
            21051,
            kGains,
            Get(kGainR + 1),
            Set(kGainR + 1),
            {.error = ErrorText::CustomUserGRefused}},
    ListRow{"picture.custom-user-b",
            124,
            21052,
            kGains,
            Get(kGainR + 2),
            Set(kGainR + 2),
            {.error = ErrorText::CustomUserBRefused}},
    // The numbers of the balances' texts are not consecutive: R 73, G 81, B 72.
    CentredSlider("picture.color-bal-r", 125, {20803, 21067, 20804, 21122}, CommandCode::ColorBalR,
                  ErrorText::ColorBalRRefused, RangeIndex::ColorBalR, kColorBalance),
    CentredSlider("picture.color-bal-g", 126, {20805, 21039, 20806, 21123}, CommandCode::ColorBalG,
                  ErrorText::ColorBalGRefused, RangeIndex::ColorBalG, kColorBalance),
    CentredSlider("picture.color-bal-b", 127, {20807, 21042, 20808, 21124}, CommandCode::ColorBalB,
                  ErrorText::ColorBalBRefused, RangeIndex::ColorBalB, kColorBalance),
    CentredSlider("picture.sharpness", 118, {20809, 21055, 20810, 21125}, CommandCode::Sharpness,
                  ErrorText::SharpnessRefused, RangeIndex::Sharpness, Range{-8, 8}, 1),
    CentredSlider("picture.color", 116, {20811, 21058, 20812, 21126}, CommandCode::Color,
                  ErrorText::ColorRefused, RangeIndex::Color),
    CentredSlider("picture.tint", 117, {20813, 21061, 20814, 21127}, CommandCode::Tint,
                  ErrorText::TintRefused, RangeIndex::Tint),
    ActionRow{"picture.my-memory",
              119,
              21064,
              Named(Op::SetMyMemory),
              Rereads::WhenDone,
              ActionList{21063, kMyMemories},
              {},
              0,
              ListText::MemoryDoneBase},
    ResetRow{"picture.reset", 21068, 21069, kResets},
};

}  // namespace

constinit const PageTable kPicture1Rows{.rows = kRows, .refusedIsReadBack = true};

}  // namespace AdvancedControl
