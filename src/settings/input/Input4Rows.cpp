#include "settings/PageTables.h"

constinit const PageTable kInput4Rows{};
