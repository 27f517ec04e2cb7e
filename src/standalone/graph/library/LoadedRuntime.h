#pragma once

#include <filesystem>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/library/RuntimeContent.h"

namespace orvlib {

/// A compound that is to be offered as a kind of node.
struct Publication {
  NodeDescription node;

  /// Whether it may take the place of a published compound of its name.
  bool replace = false;

  /// In the folder of published compounds; empty for one that is named after the compound.
  std::filesystem::path file;
};

/// A runtime and the folder of its definition files: runtime.yaml, and one more `.yaml` file a
/// library or published compound. A further folder holds compounds that users publish.
class ORV_EXPORT LoadedRuntime {
 public:
  /// Reads the folder, and that of published compounds, which is the folder in `published` that has
  /// the runtime's name; without `published` there is none. What is left out is told in
  /// `diagnostics`; null when runtime.yaml is.
  static std::unique_ptr<LoadedRuntime> load(const std::filesystem::path& folder,
                                             Diagnostics& diagnostics,
                                             const std::filesystem::path& published = {});

  /// Reads the folders again. A file that is bad now keeps what it held before; one that is gone
  /// takes its library or compound with it. A runtime keeps its name.
  Diagnostics rebuild();

  /// Writes the compound to its file and offers it. Empty, or the reason why it cannot be done:
  /// files and library are then as they were.
  std::string publish(const Publication& publication);

  /// Writes the definition file of a compound, which is not offered. Empty, or the reason why the
  /// file is as it was.
  std::string writeDefinition(const NodeDescription& node, const std::filesystem::path& file) const;

  const RuntimeDescription& description() const { return *description_; }
  const RuntimeContent& content() const { return content_; }

  /// Null handles for an unknown name.
  ORV_v1::AddRefWrapper<ORV_v1::PortDataType> findPortType(std::string_view name) const;
  ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> findLibrary(std::string_view name) const;
  ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> findNode(std::string_view name) const;

  /// The file of a published compound; empty for an unknown name, and for any other node.
  std::string compoundFile(std::string_view name) const;

  /// The file runtime.yaml.
  std::filesystem::path file() const;

  /// Empty without one. It need not be there.
  const std::filesystem::path& publishedFolder() const { return published_; }

  /// Whether a `.yaml` file of that path is one that lies in the folder of published compounds.
  bool isInPublishedFolder(const std::filesystem::path& file) const;

 private:
  explicit LoadedRuntime(std::filesystem::path folder);
  void rereadDescription(Diagnostics& diagnostics);
  void readDefinitions(Diagnostics& diagnostics);
  void setCompounds(CompoundFiles compounds);
  bool lacksRoot() const;
  Diagnostic missingRoot() const;
  std::string whyTaken(const Publication& publication, const std::string& file) const;
  CompoundFiles withCompound(CompoundFile entry) const;

  std::filesystem::path folder_;
  std::filesystem::path published_;
  std::shared_ptr<const RuntimeDescription> description_;
  LibrariesByFile libraries_;
  CompoundFiles compounds_;
  NameMap<std::string> compoundFiles_;
  RuntimeContent content_;
};

}  // namespace orvlib
