#include "settings/PageTables.h"

constinit const PageTable kScreen4Rows{};
