#include "settings/PageTables.h"

constinit const PageTable kInput3Rows{};
