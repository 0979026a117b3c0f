#include "settings/PageTables.h"
#include "settings/input/InputLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr PageRow kRows[] = {
    // Intended: progressive is only shown here; a choice is not sent.
    ListRow{"video.progressive", 60, 20221, kLegacyProgressive, Get(CommandCode::Progressive)},
    ListRow{"video.3d-ycs", 57, 20111, kLegacyYcs, Get(CommandCode::Ycs3D), Named(Op::Set3DYCS),
            kSendsPosition},
    ListRow{"video.video-nr", 1058, 20220, kLegacyNoiseReductions, Get(CommandCode::VideoNr),
            Flagged(Op::SetVideoNR, 1), kSendsPosition},
};

}  // namespace

constinit const PageTable kVideoRows{kRows};

}  // namespace AdvancedControl
