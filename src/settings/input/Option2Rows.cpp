#include "settings/PageTables.h"

constinit const PageTable kOption2Rows{};
