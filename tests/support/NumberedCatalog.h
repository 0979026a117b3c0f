#pragma once

#include <string>

#include <gtest/gtest.h>

#include "i18n/Catalog.h"
#include "tests/i18n/ModuleBuilder.h"

/// While it lives, every text of the list category is its own number, behind `sign`, so that a test
/// sees which text a list asks for, also where two texts read the same.
struct NumberedCatalog {
  explicit NumberedCatalog(const std::string& sign = {}) {
    TestBlock block{MessageId(5, 0), {}};
    for (int number = 0; number < 4400; ++number) {
      block.entries.push_back(Ansi(sign + std::to_string(number) + "\r\n"));
    }
    const std::string folder = testing::TempDir();
    TestModule({{1033, {block}}}).Save(folder + "/mcdll.dll");
    EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  }
  ~NumberedCatalog() { LoadCatalog(); }
};
