#pragma once

#include "pages/common/CTabPage.h"
#include "resources/TemplateId.h"
#include "settings/PageTables.h"

// Pages that are nothing but their table.

#define PAGE(identifier, number, pageClass)
#define TABLE_PAGE(identifier, number, pageClass) \
  using pageClass = TablePage<TemplateId::identifier, k##identifier##Rows>;
#include "settings/Pages.def"
