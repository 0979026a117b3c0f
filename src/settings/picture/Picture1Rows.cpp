#include "settings/PageTables.h"

constinit const PageTable kPicture1Rows{};
