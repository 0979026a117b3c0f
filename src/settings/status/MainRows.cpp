#include "settings/PageTables.h"

constinit const PageTable kMainRows{};
