#include "settings/PageTables.h"

constinit const PageTable kImage4Rows{};
