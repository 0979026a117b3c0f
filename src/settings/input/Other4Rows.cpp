#include "settings/PageTables.h"

constinit const PageTable kOther4Rows{};
