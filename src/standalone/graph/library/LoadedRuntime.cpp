#include "standalone/graph/library/LoadedRuntime.h"

#include "standalone/graph/library/DefinitionFile.h"
#include "standalone/graph/library/DefinitionFiles.h"
#include "standalone/graph/library/RuntimeReader.h"

namespace orvlib {
namespace {

template <class T>
T found(const NameMap<T>& map, std::string_view name) {
  const auto entry = map.find(name);
  return entry == map.end() ? T() : entry->second;
}

}  // namespace

LoadedRuntime::LoadedRuntime(std::filesystem::path folder) : folder_(std::move(folder)) {}

std::unique_ptr<LoadedRuntime> LoadedRuntime::load(const std::filesystem::path& folder,
                                                   Diagnostics& diagnostics,
                                                   const std::filesystem::path& published) {
  std::unique_ptr<LoadedRuntime> runtime(new LoadedRuntime(folder));
  runtime->description_ = readOrReport(runtime->file(), diagnostics, readRuntime);
  if (!runtime->description_) return nullptr;
  if (!published.empty()) runtime->published_ = published / runtime->description_->name;
  runtime->readDefinitions(diagnostics);
  if (runtime->lacksRoot()) diagnostics.push_back(runtime->missingRoot());
  return runtime;
}

Diagnostics LoadedRuntime::rebuild() {
  Diagnostics diagnostics;
  const auto formerDescription = description_;
  const LibrariesByFile formerLibraries = libraries_;
  const CompoundFiles formerCompounds = compounds_;
  rereadDescription(diagnostics);
  Diagnostics ofFiles;
  readDefinitions(ofFiles);
  if (lacksRoot()) diagnostics.push_back(missingRoot());
  if (lacksRoot() && description_ != formerDescription) {
    // The new description names a root that no file has: with it every library would be lost.
    description_ = formerDescription;
    libraries_ = formerLibraries;
    compounds_ = formerCompounds;
    ofFiles.clear();
    readDefinitions(ofFiles);
  }
  diagnostics.insert(diagnostics.end(), ofFiles.begin(), ofFiles.end());
  return diagnostics;
}

void LoadedRuntime::rereadDescription(Diagnostics& diagnostics) {
  auto description = readOrReport(file(), diagnostics, readRuntime);
  if (!description) return;
  if (description->name == description_->name) {
    description_ = std::move(description);
    return;
  }
  const Position at = description->namePosition;
  diagnostics.push_back({file().string(), at.line, at.column,
                         "the loaded runtime '" + description_->name + "' cannot become '" +
                             description->name + "'"});
}

void LoadedRuntime::readDefinitions(Diagnostics& diagnostics) {
  const DefinitionFiles former{libraries_, compounds_};
  DefinitionFiles current =
      readDefinitionFiles(folder_, published_, former, description_->types, diagnostics);
  const std::string& root = description_->rootLibrary;
  libraries_ = chooseLibraries(current.libraries, former.libraries, root, diagnostics);
  setCompounds(chooseCompounds(current.compounds, former.compounds, libraries_, root, diagnostics));
}

void LoadedRuntime::setCompounds(CompoundFiles compounds) {
  compounds_ = std::move(compounds);
  compoundFiles_.clear();
  for (const CompoundFile& entry : compounds_) {
    compoundFiles_.emplace(entry.compound->node->name, entry.file);
  }
  content_ = makeContent(*description_, libraries_, compounds_, content_);
}

bool LoadedRuntime::lacksRoot() const {
  return !description_->rootLibrary.empty() && !content_.rootLibrary;
}

Diagnostic LoadedRuntime::missingRoot() const {
  const Position at = description_->rootPosition;
  return {file().string(), at.line, at.column,
          "the root library '" + description_->rootLibrary + "' is not loaded"};
}

ORV_v1::AddRefWrapper<ORV_v1::PortDataType> LoadedRuntime::findPortType(
    std::string_view name) const {
  return found(content_.typesByName, name);
}

ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> LoadedRuntime::findLibrary(std::string_view name) const {
  return found(content_.librariesByName, name);
}

ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> LoadedRuntime::findNode(std::string_view name) const {
  return found(content_.nodesByName, name);
}

std::string LoadedRuntime::compoundFile(std::string_view name) const {
  return found(compoundFiles_, name);
}

std::filesystem::path LoadedRuntime::file() const { return folder_ / "runtime.yaml"; }

}  // namespace orvlib
