#include "settings/PageTables.h"

constinit const PageTable kAuto2Rows{};
