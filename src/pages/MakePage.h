#pragma once

#include <memory>

#include "Namespace.h"
#include "settings/PageSets.h"
#include "toolkit/CWnd.h"

class CTabPage;

namespace AdvancedControl {

/// Makes a page, which is hidden and has no controls until `Create`.
std::unique_ptr<CTabPage> MakePage(PageId page, CWnd* parent);

}  // namespace AdvancedControl
