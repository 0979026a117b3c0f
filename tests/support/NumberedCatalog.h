#pragma once

#include <string>

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "i18n/Catalog.h"
#include "settings/CatalogNumbers.h"
#include "tests/i18n/ModuleBuilder.h"

/// While it lives, every caption, text of the list category and error text is its own number,
/// behind `sign`, so that a test sees which text is asked for, also where two texts read the same.
struct NumberedCatalog {
  explicit NumberedCatalog(const std::string& sign = {}) {
    TestBlock captions{MessageId(4, 0), {}};
    for (int number = 0; number < 4400; ++number) {
      captions.entries.push_back(Ansi(sign + std::to_string(number) + "\r\n"));
    }
    TestBlock list{MessageId(5, 0), captions.entries};
    list.entries[ListText::StatusValue] = Ansi("status %1\r\n");  // around another text
    const TestBlock errors{MessageId(2201, 0), captions.entries};
    const std::string folder = own.path().toStdString();
    TestModule({{1033, {captions, list, errors}}}).Save(folder + "/mcdll.dll");
    EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  }
  ~NumberedCatalog() { LoadCatalog(); }

  QTemporaryDir own;  // tests that run side by side have catalogs of their own
};
