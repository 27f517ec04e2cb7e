#pragma once

#include <string>
#include <vector>

/// What the module asked of the host since the last call of this function, in order, such as
/// "registerCommand orv". The test program stands in front of the host for these functions, notes
/// each call and passes it on.
std::vector<std::string> takeRecordedCalls();

/// While it lives, the host gives no object of a selection list that it filled.
class RefusedSelections {
 public:
  RefusedSelections();
  ~RefusedSelections();
  RefusedSelections(const RefusedSelections&) = delete;
  RefusedSelections& operator=(const RefusedSelections&) = delete;
};
