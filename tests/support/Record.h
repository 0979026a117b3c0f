#pragma once

#include <algorithm>
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
  EXPECT_NE(now, "") << file;
}

/// The same for the answers to the questions that the record has, "question => answer" in a line.
inline void ExpectAnswers(const std::string& file, auto answer) {
  std::ifstream record(file);
  std::string now;
  for (std::string line; std::getline(record, line); now += line + '\n') {
    if (line.starts_with('#')) continue;
    line.erase(std::min(line.find(" => "), line.size()));
    line += " => " + answer(std::string(line));
  }
  ExpectRecord(file, now);
}
