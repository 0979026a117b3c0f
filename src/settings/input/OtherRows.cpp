#include "settings/PageTables.h"

constinit const PageTable kOtherRows{};
