#pragma once

#include <memory>

#include "settings/PageSets.h"
#include "toolkit/CWnd.h"

class CTabPage;

/// A page, hidden and without controls until it is created.
std::unique_ptr<CTabPage> MakePage(PageId page, CWnd* parent);
