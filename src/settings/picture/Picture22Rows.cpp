#include "settings/PageTables.h"

constinit const PageTable kPicture22Rows{};
