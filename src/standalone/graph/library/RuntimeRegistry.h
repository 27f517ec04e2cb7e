#pragma once

#include <functional>

#include "platform/ORV_1_0/Runtime.h"
#include "standalone/graph/library/LoadedRuntime.h"

namespace orvlib {

/// Owns the runtimes of a program. `ORV_v1::Host` shows those of the current registry.
class ORV_EXPORT RuntimeRegistry {
 public:
  using DiagnosticHandler = std::function<void(const Diagnostic&)>;

  RuntimeRegistry();
  RuntimeRegistry(const RuntimeRegistry&) = delete;
  RuntimeRegistry& operator=(const RuntimeRegistry&) = delete;

  /// Ends being current too; pointers to the runtimes die.
  ~RuntimeRegistry();

  /// Takes the place of the registry that was current. Null when there is none.
  void makeCurrent();
  static RuntimeRegistry* current();

  /// Where the runtimes loaded from now on find and keep what users publish: in the folder in
  /// `folder` that has their name. It need not be there. Without one, nothing can be published.
  void setPublishedFolder(std::filesystem::path folder);

  /// Loads each folder inside `folder` as a runtime, in the order of their names, after those
  /// already there. What is bad is left out and told; the rest is loaded. A runtime whose name is
  /// taken is bad.
  Diagnostics load(const std::filesystem::path& folder);

  unsigned int size() const { return static_cast<unsigned int>(runtimes_.size()); }

  /// Null past the end, or for an unknown name.
  ORV_v1::Runtime* at(unsigned int index) const;
  ORV_v1::Runtime* find(std::string_view name) const;

  /// In the first runtime that has one of that name; else a null handle.
  ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> findLibrary(std::string_view name) const;

  /// Gets what goes wrong when a runtime is rebuilt through `ORV_v1::Runtime`, which itself reports
  /// nothing. Without a handler it is dropped.
  void setDiagnosticHandler(DiagnosticHandler handler);
  void report(const Diagnostics& diagnostics) const;

 private:
  void loadRuntime(const std::filesystem::path& folder, Diagnostics& diagnostics);

  std::vector<std::unique_ptr<ORV_v1::Runtime>> runtimes_;
  DiagnosticHandler handler_;
  std::filesystem::path published_;
};

}  // namespace orvlib
