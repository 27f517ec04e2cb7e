#pragma once

#include <string>
#include <vector>

/// What the module asked of the host since the last call of this function, in order, such as
/// "registerCommand orv". The test program stands in front of the host for these functions, notes
/// each call and passes it on.
std::vector<std::string> takeRecordedCalls();
