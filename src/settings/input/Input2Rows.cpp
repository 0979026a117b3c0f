#include "settings/PageTables.h"

constinit const PageTable kInput2Rows{};
