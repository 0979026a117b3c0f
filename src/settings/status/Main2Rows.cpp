#include "settings/PageTables.h"

constinit const PageTable kMain2Rows{};
