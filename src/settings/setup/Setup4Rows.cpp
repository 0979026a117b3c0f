#include "settings/PageTables.h"

constinit const PageTable kSetup4Rows{};
