#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Formats rows as aligned columns for a terminal.
class Table {
 public:
  void Add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
  /// One line for each row; the last column is not padded.
  std::string Text() const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

/// The number of terminal columns that a UTF-8 text takes.
int DisplayWidth(std::string_view text);
