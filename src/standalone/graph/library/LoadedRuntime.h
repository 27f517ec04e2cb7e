#pragma once

#include <filesystem>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/library/RuntimeContent.h"

namespace orvlib {

/// A runtime and the folder of its definition files: runtime.yaml, and one more `.yaml` file a
/// library.
class ORV_EXPORT LoadedRuntime {
 public:
  /// Reads the folder. What is left out is told in `diagnostics`; null when runtime.yaml is.
  static std::unique_ptr<LoadedRuntime> load(const std::filesystem::path& folder,
                                             Diagnostics& diagnostics);

  /// Reads the folder again. A file that is bad now keeps what it held before; one that is gone
  /// takes its library with it. A runtime keeps its name.
  Diagnostics rebuild();

  const RuntimeDescription& description() const { return *description_; }
  const RuntimeContent& content() const { return content_; }

  /// Null handles for an unknown name.
  ORV_v1::AddRefWrapper<ORV_v1::PortDataType> findPortType(std::string_view name) const;
  ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> findLibrary(std::string_view name) const;
  ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> findNode(std::string_view name) const;

  /// The file runtime.yaml.
  std::filesystem::path file() const;

 private:
  explicit LoadedRuntime(std::filesystem::path folder);
  void rereadDescription(Diagnostics& diagnostics);
  void readLibraries(Diagnostics& diagnostics);
  bool lacksRoot() const;
  Diagnostic missingRoot() const;

  std::filesystem::path folder_;
  std::shared_ptr<const RuntimeDescription> description_;
  LibrariesByFile libraries_;
  RuntimeContent content_;
};

}  // namespace orvlib
