#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Lines of aligned columns, as wide as a terminal shows them.
class Table {
 public:
  void Add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
  /// One line a row; the last column is not padded.
  std::string Text() const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

/// Columns that a terminal needs for a UTF-8 text.
int DisplayWidth(std::string_view text);
