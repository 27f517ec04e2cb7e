#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace fuzz {

/// Ends the program, saying what should have held, when it does not.
inline void require(bool holds, std::string_view what, std::string_view details = {}) {
  if (holds) return;
  std::cerr << "does not hold: " << what << std::endl << details << std::endl;
  std::abort();
}

}  // namespace fuzz
