#include "settings/PageTables.h"

constinit const PageTable kOption4Rows{};
