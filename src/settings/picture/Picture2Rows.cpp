#include "settings/PageTables.h"

constinit const PageTable kPicture2Rows{};
