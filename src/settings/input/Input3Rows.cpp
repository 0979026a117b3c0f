#include "settings/PageTables.h"
#include "settings/SharedRows.h"
#include "settings/input/InputLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr PageRow kRows[] = {
    VideoFormatRow(20109),
    ListRow{"input.video-nr", 1058, 20110, kSwitch, Get(CommandCode::VideoNr),
            Flagged(Op::SetVideoNR, 1), kSendsPosition, NotOn(8, 10, 47, 48, 71)},
    ListRow{"input.progressive", 60, 21054, kLegacyProgressive, Get(CommandCode::Progressive),
            Named(Op::SetProgressive), kSendsPosition, NotOn(10, 47, 48, 71)},
    ListRow{"input.black", 66, 21055, kSwitch, Get(CommandCode::Black), Named(Op::SetBlack),
            kSendsPosition, NotOn(10, 47, 48, 71)},
    ListRow{"input.hdtv", 64, 20111, kHdtvs, Get(CommandCode::Hdtv), Named(Op::SetHDTV),
            kSendsPosition, NotOn(47)},
    shared::AutoAdjust("input.auto-adjust", 20108),
};

}  // namespace

constinit const PageTable kInput3Rows{kRows};

}  // namespace AdvancedControl
