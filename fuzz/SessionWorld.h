#pragma once

#include <string>
#include <vector>

#include "fuzz/TemporaryFolder.h"
#include "standalone/graph/Graph.h"
#include "standalone/vesk/Startup.h"

namespace fuzz {

/// Hears everything and says nothing.
class Silence final : public vesk::LineListener {
 public:
  void lineBegins(std::string_view) override {}
  void message(const vesk::Message&) override {}
  void lineEnded(const vesk::ResultValue&, KStatus) override {}
};

/// A whole platform with the module in one process, whose files lie in a folder of its own. It is
/// brought up once, since that takes long, and begins anew for each input.
class SessionWorld {
 public:
  SessionWorld();

  /// An empty scene but for the graph "g", with nothing to undo, as in a program just started.
  void beginAnew();

  /// The status of the line.
  KStatus run(std::string_view line);

  vesk::HostSession& session() { return platform_->session(); }
  std::vector<orvlib::Graph*> graphs();

  /// The scene as it would be saved.
  std::string sceneText();

  /// What a line may write to and read from; the current folder too, which names without a path
  /// lead to.
  const TemporaryFolder& files() const { return files_; }

  /// Files may have been written, and compounds published: it begins anew without them.
  void noteFiles() { filesWritten_ = true; }

 private:
  void forgetFiles();
  void forgetOptions();

  TemporaryFolder files_;
  Silence silence_;
  std::unique_ptr<vesk::Platform> platform_;
  bool filesWritten_ = false;
};

}  // namespace fuzz
