#pragma once

#include <memory>

#include "Namespace.h"
#include "settings/PageSets.h"
#include "toolkit/CWnd.h"

class CTabPage;

namespace AdvancedControl {

/// A page, hidden and without controls until it is created.
std::unique_ptr<CTabPage> MakePage(PageId page, CWnd* parent);

}  // namespace AdvancedControl
