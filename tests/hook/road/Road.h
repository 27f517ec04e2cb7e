#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "platform/ORV_1_0/Container.h"
#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "tests/support/HostTest.h"
#include "tests/support/TemporaryFiles.h"

/// A host with the real module and a graph "g", whose lines go to a journal. It runs in a folder of
/// its own, where files of relative paths go, and publishes to another.
class Road {
 public:
  Road();
  ~Road();

  orvUI_v1::CommandHook& edits();
  orvUI_v1::AppServicesHook& services();

  /// What waits for the user's next pause.
  void runIdleLines();

  std::string stored() const;
  std::size_t steps() { return host().steps().size(); }
  bool hasOpenChunk() { return host().session().undoQueue().hasOpenChunk(); }
  hosttest::Host& host() { return *host_; }
  ORV_v1::Container& graph() { return *graph_; }

  /// The lines that were journalled since this was last called, without the comments.
  std::vector<std::string> takeLines();

  /// What "g" is in a new process after the lines of the journal, as it is stored. Empty, and the
  /// test failed, when that process did not get that far.
  std::string replayed();

 private:
  void makeGraph();

  hosttest::TemporaryFiles files_;
  std::filesystem::path folderBefore_ = std::filesystem::current_path();
  orvlib::RuntimeRegistry runtimes_;
  std::unique_ptr<hosttest::Host> host_;
  ORV_v1::Container* graph_ = nullptr;
  std::ifstream journal_;
};
