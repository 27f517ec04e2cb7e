#pragma once

#include <functional>
#include <string>

#include "tests/support/HostTest.h"

/// Notes how values are set in the graph library: the test program's own definitions of
/// `setPortValues` and `doit` of two of the library's commands come ahead of the library's, and
/// hand each call on. One lives at a time.
class DirectValueCalls {
 public:
  DirectValueCalls();
  ~DirectValueCalls();
  DirectValueCalls(const DirectValueCalls&) = delete;
  DirectValueCalls& operator=(const DirectValueCalls&) = delete;

  /// The calls since it was last asked, such as "node /a value {1,2} interactive" and "node
  /// doit".
  hosttest::Texts take() { return std::exchange(texts_, {}); }

  /// Called at the beginning of each call.
  std::function<void()> atCall;

  static DirectValueCalls* current;
  void note(const std::string& call);

 private:
  hosttest::Texts texts_;
};
