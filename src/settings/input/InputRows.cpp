#include "settings/PageTables.h"

constinit const PageTable kInputRows{};
