#pragma once

#include <memory>

#include "settings/PageSets.h"
#include "toolkit/CWnd.h"

class CTabPage;

/// Makes a page, which is hidden and has no controls until `Create`.
std::unique_ptr<CTabPage> MakePage(PageId page, CWnd* parent);
