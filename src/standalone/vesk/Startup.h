#pragma once

#include <memory>
#include <string>

#include "standalone/colour/ColourService.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/vesk/Console.h"
#include "standalone/vesk/ProgramOptions.h"

namespace vesk {

/// A running platform: host session, graph library and modules, as the options ask for them. It
/// goes down in the reverse order.
class Platform {
 public:
  /// `listener` hears the messages that come while no line runs. `kept` says whether the user's
  /// settings, language and published compounds count: they do for a user, and do not for a
  /// transcript that must come out the same everywhere.
  Platform(const ProgramOptions& options, LineListener& listener, bool kept);
  ~Platform();

  /// What could not be brought up; empty when all is there.
  const std::string& problem() const { return problem_; }

  HostSession& session() { return *session_; }

  /// Runs a line and what it left for idle time; all that happens meanwhile is told to `listener`.
  KStatus runLine(std::string_view line, LineListener& listener);

 private:
  bool loadLibraries(const ProgramOptions& options);
  bool loadPlugins(const ProgramOptions& options);

  LineListener* listener_;
  std::unique_ptr<orvlib::RuntimeRegistry> runtimes_;
  std::unique_ptr<HostSession> session_;
  std::unique_ptr<colour::ColourService> colours_;
  std::string problem_;
};

}  // namespace vesk
