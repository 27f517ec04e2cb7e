#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/ResultValue.h"

namespace hosttest {

using Texts = std::vector<std::string>;

/// A host that notes what it tells its user. A message that the test does not take fails the test.
class Host {
 public:
  explicit Host(vesk::SessionOptions options = {});
  ~Host();

  /// Runs a line that must work, and what waits on the idle queue; gives its result as JSON.
  std::string run(std::string_view line);

  /// Runs a line that must fail; gives its messages.
  Texts refusal(std::string_view line);

  /// Runs a line and gives its status.
  KStatusCode status(std::string_view line);

  /// What was told since it was last asked: "! " an error, "? " a warning, "- " a print.
  Texts takeMessages() { return std::exchange(messages_, {}); }

  /// The lines that were echoed since it was last asked.
  Texts takeEchoes() { return std::exchange(echoes_, {}); }

  /// The names of the steps that can be undone, oldest first.
  Texts steps() { return session().undoQueue().doneNames(); }

  vesk::HostSession& session() { return *session_; }

  /// Ends the session ahead of this object.
  void end() { session_.reset(); }

 private:
  void hear(const vesk::Message& message);

  Texts messages_;
  Texts echoes_;
  std::unique_ptr<vesk::HostSession> session_;
};

}  // namespace hosttest
