#include "settings/PageTables.h"

constinit const PageTable kOption3Rows{};
