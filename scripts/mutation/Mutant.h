#pragma once

#include <type_traits>

// Included first in every file with mutants. The environment variable MUTANT has the number of the
// active mutant. With MUTANTS_REACHED, each mutant that is reached sets its byte in that file.
bool IsMutantActive(int number) noexcept;

constexpr bool IsMutant(int number) noexcept {
  if (std::is_constant_evaluated()) return false;  // the compiler knows no mutants
  return IsMutantActive(number);
}
