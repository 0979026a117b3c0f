#include "resources/Templates.h"
#include "settings/ControlId.h"

namespace AdvancedControl {

namespace {

using namespace tmpl;
using enum RowPlace;

constexpr RowTemplate kInputRows[] = {
    Row(Left, Label(20601, "54;Color Space\t:"), Colon(20701), Combo(21074)),
    Row(Left, Label(20602, "174;Component\t:"), Colon(20702), Combo(21075)),
    Row(Left, Label(20603, "1173;Video Format\t:"), Colon(20703), Combo(21076)),
    Row(Left, Label(20604, "59;Frame Lock\t:"), Colon(20704), Combo(21059)),
    Row(Left, Label(20605, "57;3D-YCS\t\t:"), Colon(20705), Combo(21077)),
    Row(Left, Label(20606, "1058;Video NR\t:"), Colon(20706), Combo(21053)),
    Row(Left, Label(20607, "60;Progressive\t:"), Colon(20707), Combo(21060)),
    Row(Left, Label(20608, "61;S2-Aspect\t:"), Colon(20708), Combo(21058)),

    Row(Right, Label(20609, "42;P.IN P.Input\t:"), Colon(20709), Combo(21054)),
    Row(Right, Label(20610, "43;P.IN P.Position\t:"), Colon(20710), Combo(21055)),
    Row(Right, Label(20611, "44;P.IN P.Audio\t:"), Colon(20711), Combo(21056)),
    Row(Right, Label(20612, "45;P.IN P.Size\t:"), Colon(20712), Combo(21061)),
    Row(Right, Label(20613, "62;Power Up Input\t:"), Colon(20713),
        Combo(ControlId::Input::PowerUpInput)),
};

constexpr RowTemplate kInput2Rows[] = {
    Row(Left, Label(20601, "63;BNC\t\t:"), Colon(20701), Combo(20046)),
    Row(Left, Label(20602, "1173;Video Format\t:"), Colon(20702), Combo(20055)),
    Row(Left, Label(20603, "64;HDTV\t\t:"), Colon(20703), Combo(20047)),
    Row(Left, Label(20604, "65;Sync On G\t:"), Colon(20704), Combo(20048)),
    Row(Left, Label(20605, "1013;Auto Adjust"), Colon(20705), Button(20049, "17;Execute")),

    Row(Right, Label(20606, "42;P.IN P.Input\t:"), Colon(20706), Combo(20050)),
    Row(Right, Label(20607, "43;P.IN P.Position\t:"), Colon(20707), Combo(20051)),
    Row(Right, Label(20608, "44;P.IN P.Audio\t:"), Colon(20708), Combo(20052)),
    Row(Right, Label(20609, "45;P.IN P.Size\t:"), Colon(20709), Combo(20053)),
};

constexpr RowTemplate kInput3Rows[] = {
    Row(Left, Label(20601, "1173;Video Format\t:"), Colon(20701), Combo(20109)),
    Row(Left, Label(20602, "1058;Video NR\t:"), Colon(20702), Combo(20110)),
    Row(Left, Label(20603, "60;Progressive\t:"), Colon(20703), Combo(21054)),
    Row(Left, Label(20604, "66;Black\t\t:"), Colon(20704), Combo(21055)),
    Row(Left, Label(20605, "64;HDTV\t\t:"), Colon(20705), Combo(20111)),
    Row(Left, Label(20606, "1013;Auto Adjust"), Colon(20706), Button(20108, "17;Execute")),
};

constexpr RowTemplate kInput4Rows[] = {
    Row(Left, Label(20601, "54;Color Space\t:"), Colon(20701), Combo(20222)),
    Row(Left, Label(20602, "174;Component\t:"), Colon(20702), Combo(20223)),
    Row(Left, Label(20603, "1173;Video Format\t:"), Colon(20703), Combo(20224)),
    Row(Left, Label(20604, "59;Frame Lock\t:"), Colon(20704), Combo(20225)),
    Row(Left, Label(20605, "DVI"), Colon(20705), Combo(21060)),
};

constexpr RowTemplate kVideoRows[] = {
    Row(Left, Label(20601, "60;Progressive\t:"), Colon(20701), Combo(20221)),
    Row(Left, Label(20602, "57;3D-YCS\t\t:"), Colon(20702), Combo(20111)),
    Row(Left, Label(20603, "1058;Video NR\t:"), Colon(20703), Combo(20220)),
};

}  // namespace

const DialogTemplate kInputTemplate = PageTemplate(TemplateId::Input, kInputRows);

const DialogTemplate kInput2Template = PageTemplate(TemplateId::Input2, kInput2Rows);

const DialogTemplate kInput3Template = PageTemplate(TemplateId::Input3, kInput3Rows);

const DialogTemplate kInput4Template = PageTemplate(TemplateId::Input4, kInput4Rows);

const DialogTemplate kVideoTemplate = PageTemplate(TemplateId::Video, kVideoRows);

}  // namespace AdvancedControl
