#include "standalone/graph/library/LoadedRuntime.h"

#include "standalone/graph/library/DefinitionFile.h"
#include "standalone/graph/library/LibraryReader.h"
#include "standalone/graph/library/RuntimeReader.h"

namespace orvlib {
namespace {

template <class T>
T found(const NameMap<T>& map, std::string_view name) {
  const auto entry = map.find(name);
  return entry == map.end() ? T() : entry->second;
}

/// The files of libraries, each still without a library, sorted by name.
LibrariesByFile libraryFiles(const std::filesystem::path& folder, Diagnostics& diagnostics) {
  LibrariesByFile files;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const auto& path = entry->path();
    if (path.extension() == ".yaml" && path.filename() != "runtime.yaml") files[path] = nullptr;
  }
  if (error) {
    diagnostics.push_back({folder.string(), 0, 0, "the folder cannot be read: " + error.message()});
  }
  return files;
}

}  // namespace

LoadedRuntime::LoadedRuntime(std::filesystem::path folder) : folder_(std::move(folder)) {}

std::unique_ptr<LoadedRuntime> LoadedRuntime::load(const std::filesystem::path& folder,
                                                   Diagnostics& diagnostics) {
  std::unique_ptr<LoadedRuntime> runtime(new LoadedRuntime(folder));
  runtime->description_ = readOrReport(runtime->file(), diagnostics, readRuntime);
  if (!runtime->description_) return nullptr;
  runtime->readLibraries(diagnostics);
  if (runtime->lacksRoot()) diagnostics.push_back(runtime->missingRoot());
  return runtime;
}

Diagnostics LoadedRuntime::rebuild() {
  Diagnostics diagnostics;
  const auto formerDescription = description_;
  const LibrariesByFile formerLibraries = libraries_;
  rereadDescription(diagnostics);
  Diagnostics ofLibraries;
  readLibraries(ofLibraries);
  if (lacksRoot()) diagnostics.push_back(missingRoot());
  if (lacksRoot() && description_ != formerDescription) {
    // The new description names a root that no file has: with it every library would be lost.
    description_ = formerDescription;
    libraries_ = formerLibraries;
    ofLibraries.clear();
    readLibraries(ofLibraries);
  }
  diagnostics.insert(diagnostics.end(), ofLibraries.begin(), ofLibraries.end());
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

void LoadedRuntime::readLibraries(Diagnostics& diagnostics) {
  LibrariesByFile current = libraryFiles(folder_, diagnostics);
  const auto read = [this](const YamlNode& node) { return readLibrary(node, description_->types); };
  for (auto& [file, library] : current) library = readOrReport(file, diagnostics, read);
  libraries_ = chooseLibraries(current, libraries_, description_->rootLibrary, diagnostics);
  content_ = makeContent(*description_, libraries_);
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

std::filesystem::path LoadedRuntime::file() const { return folder_ / "runtime.yaml"; }

}  // namespace orvlib
