#pragma once

#include <fstream>
#include <sstream>
#include <string>

#include <QtGlobal>
#include <gtest/gtest.h>

/// Expects a text in the file of a record. With UPDATE_LISTING=1, writes it there.
inline void ExpectRecord(const std::string& file, const std::string& now) {
  std::ostringstream before;
  before << std::ifstream(file).rdbuf();
  if (qEnvironmentVariableIsSet("UPDATE_LISTING")) return void(std::ofstream(file) << now);
  EXPECT_EQ(before.str(), now);
}
