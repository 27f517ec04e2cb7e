#pragma once

#include <functional>
#include <string>

#include "platform/ORV_1_0/Port.h"
#include "tests/support/HostTest.h"

/// Stands between the commands and two of the graph library's: `ConnectCommand`, and of
/// `ModifyNodePortCommand` what deals with flags. The test program's own definitions of these
/// operations come ahead of the library's. They note each call, and hand it on to the library
/// unless a test has put something in its place. One lives at a time; without one they only hand
/// on.
class LibraryCalls {
 public:
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  LibraryCalls();
  ~LibraryCalls();
  LibraryCalls(const LibraryCalls&) = delete;
  LibraryCalls& operator=(const LibraryCalls&) = delete;

  /// The calls since it was last asked, as "connect /a.result /b.a plain".
  hosttest::Texts take() { return std::exchange(texts_, {}); }

  /// Called at the beginning of each call.
  std::function<void()> atCall;

  /// What `ConnectCommand::connect` does and says, when set.
  std::function<bool(PortHandle source, PortHandle destination)> connect;

  /// What the two operations on flags say in place of the library.
  std::function<bool()> answer;

  static LibraryCalls* current;
  void note(const std::string& call);

 private:
  hosttest::Texts texts_;
};
