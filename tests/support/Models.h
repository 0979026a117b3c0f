#pragma once

#include <map>
#include <vector>

/// By dialog type: every model code that some page of its set treats apart, and one that none does.
inline const std::map<int, std::vector<int>>& ListedModels() {
  static const std::map<int, std::vector<int>> models{
      {1, {0, 1, 2, 3, 16, 17}},
      {2, {0, 6, 7, 14, 15, 18, 19, 20}},
      {3, {0, 4, 5, 8, 10, 47, 48, 71}},
      {4, {0, 9, 11, 12, 13, 21, 22, 23, 24, 25, 26, 27, 28, 29}},
      {5, {29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42,
           43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55}},
  };
  return models;
}
