#pragma once

#include "standalone/graph/library/LoadedRuntime.h"
#include "tests/standalone/graph/TemporaryFolder.h"

/// A folder with a good runtime.yaml, whose libraries a test writes.
class RuntimeFolder : public TemporaryFolder {
 public:
  RuntimeFolder() { write("runtime.yaml", kRuntime); }

  std::unique_ptr<orvlib::LoadedRuntime> load() {
    diagnostics.clear();
    return orvlib::LoadedRuntime::load(path(), diagnostics);
  }

  /// Writes a library of one node that is named after `node`.
  std::string writeLibrary(const std::string& file, const std::string& library,
                           const std::string& node = "pass") const {
    return write(file, "library: " + library +
                           "\nniceName: Nice\ndescription: Text.\nnodes:\n  - {name: " + node +
                           ", niceName: Nice, description: Text.}\n");
  }

  orvlib::Diagnostics diagnostics;

  static constexpr const char* kRuntime =
      "name: trial\n"
      "niceName: Trial\n"
      "description: For tests.\n"
      "rootLibrary: core\n"
      "portTypes:\n"
      "  - {name: bool, niceName: Bool, description: Text., scalar: boolean}\n"
      "  - {name: int, niceName: Int, description: Text., scalar: integer}\n"
      "  - {name: float, niceName: Float, description: Text., scalar: float, default: 0.25}\n"
      "  - {name: pair, niceName: Pair, description: Text., scalar: float, components: [x, y]}\n"
      "  - {name: array<pair>, niceName: Pairs, description: Text., element: pair}\n";
};
