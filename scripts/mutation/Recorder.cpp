// Linked into each suite: writes what each test has reached to MUTANTS_RECORD, a line for each test
// with its name, seconds, whether it passed, and the numbers of the mutants. The line "start" has
// what ran before the first test.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace {

class Recorder : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& /*test*/) override {
    if (!started_) Write("start 0 1");
    started_ = true;
  }

  void OnTestEnd(const testing::TestInfo& test) override {
    const testing::TestResult& result = *test.result();
    Write(std::string(test.test_suite_name()) + '.' + test.name() + ' ' +
          std::to_string(static_cast<double>(result.elapsed_time()) / 1000) +
          (result.Passed() ? " 1" : " 0"));
  }

  static void Write(const std::string& title) {
    std::fstream bytes(std::getenv("MUTANTS_REACHED"),
                       std::ios::binary | std::ios::in | std::ios::out);
    const std::string reached(std::istreambuf_iterator<char>(bytes), {});
    std::ofstream record(std::getenv("MUTANTS_RECORD"), std::ios::app);
    record << title;
    for (std::size_t number = 0; number < reached.size(); ++number) {
      if (reached[number] != 0) record << ' ' << number;
    }
    record << '\n';
    bytes.clear();
    bytes.seekp(0);
    bytes << std::string(reached.size(), '\0');
  }

  bool started_ = false;
};

[[maybe_unused]] const bool kIsListening = [] {
  if (std::getenv("MUTANTS_RECORD"))
    testing::UnitTest::GetInstance()->listeners().Append(new Recorder);
  return true;
}();

}  // namespace
