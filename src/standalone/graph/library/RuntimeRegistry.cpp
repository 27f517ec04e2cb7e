#include "standalone/graph/library/RuntimeRegistry.h"

#include <algorithm>

#include "standalone/graph/api/GraphAccess.h"

namespace orvlib {
namespace {

RuntimeRegistry* currentRegistry = nullptr;

/// The folders inside a folder, sorted by name; those whose name begins with a dot are passed over.
std::vector<std::filesystem::path> foldersIn(const std::filesystem::path& folder,
                                             Diagnostics& diagnostics) {
  std::vector<std::filesystem::path> folders;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    const bool isHidden = entry->path().filename().string().starts_with('.');
    if (!isHidden && entry->is_directory(ignored)) folders.push_back(entry->path());
  }
  if (error) {
    diagnostics.push_back({folder.string(), 0, 0, "the folder cannot be read: " + error.message()});
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

}  // namespace

RuntimeRegistry::RuntimeRegistry() = default;

RuntimeRegistry::~RuntimeRegistry() {
  if (currentRegistry == this) currentRegistry = nullptr;
}

void RuntimeRegistry::makeCurrent() { currentRegistry = this; }

RuntimeRegistry* RuntimeRegistry::current() { return currentRegistry; }

void RuntimeRegistry::setPublishedFolder(std::filesystem::path folder) {
  published_ = std::move(folder);
}

Diagnostics RuntimeRegistry::load(const std::filesystem::path& folder) {
  Diagnostics diagnostics;
  for (const auto& runtime : foldersIn(folder, diagnostics)) loadRuntime(runtime, diagnostics);
  return diagnostics;
}

void RuntimeRegistry::loadRuntime(const std::filesystem::path& folder, Diagnostics& diagnostics) {
  auto loaded = LoadedRuntime::load(folder, diagnostics, published_);
  if (!loaded) return;
  const RuntimeDescription& description = loaded->description();
  if (find(description.name)) {
    const Position at = description.namePosition;
    diagnostics.push_back({loaded->file().string(), at.line, at.column,
                           "a runtime named '" + description.name + "' is already loaded"});
    return;
  }
  runtimes_.push_back(ORV_v1::GraphAccess::makeRuntime(std::move(loaded)));
}

ORV_v1::Runtime* RuntimeRegistry::at(unsigned int index) const {
  return index < runtimes_.size() ? runtimes_[index].get() : nullptr;
}

ORV_v1::Runtime* RuntimeRegistry::find(std::string_view name) const {
  for (const auto& runtime : runtimes_) {
    if (ORV_v1::GraphAccess::loaded(*runtime).description().name == name) return runtime.get();
  }
  return nullptr;
}

ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> RuntimeRegistry::findLibrary(
    std::string_view name) const {
  for (const auto& runtime : runtimes_) {
    auto library = ORV_v1::GraphAccess::loaded(*runtime).findLibrary(name);
    if (library) return library;
  }
  return {};
}

void RuntimeRegistry::setDiagnosticHandler(DiagnosticHandler handler) {
  handler_ = std::move(handler);
}

void RuntimeRegistry::report(const Diagnostics& diagnostics) const {
  if (!handler_) return;
  for (const Diagnostic& diagnostic : diagnostics) handler_(diagnostic);
}

}  // namespace orvlib
