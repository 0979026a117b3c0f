#include "settings/PageTables.h"

constinit const PageTable kPicture12Rows{};
