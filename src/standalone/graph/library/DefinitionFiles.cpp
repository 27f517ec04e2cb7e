#include "standalone/graph/library/DefinitionFiles.h"

#include <algorithm>

#include "standalone/graph/library/CompoundReader.h"
#include "standalone/graph/library/DefinitionFile.h"
#include "standalone/graph/library/LibraryReader.h"

namespace orvlib {
namespace {

namespace fs = std::filesystem;

/// Sorted by name.
std::vector<std::string> filesIn(const fs::path& folder, Diagnostics& diagnostics) {
  std::vector<std::string> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const fs::path& path = entry->path();
    if (path.extension() == ".yaml" && path.filename() != "runtime.yaml") files.push_back(path);
  }
  if (error) {
    diagnostics.push_back({folder.string(), 0, 0, "the folder cannot be read: " + error.message()});
  }
  std::ranges::sort(files);
  return files;
}

/// What one file holds: one of the two, or nothing.
struct Definition {
  LibraryPtr library;
  CompoundPtr compound;
};

class Reader {
 public:
  Reader(const DefinitionFiles& former, const TypeTable& types, Diagnostics& diagnostics)
      : types_(types), diagnostics_(diagnostics) {
    for (const CompoundFile& entry : former.compounds) former_.emplace(entry.file, entry.compound);
  }

  DefinitionFiles take() { return std::move(files_); }

  void readFolder(const fs::path& folder) {
    for (const std::string& file : filesIn(folder, diagnostics_)) {
      add(file, readOrReport(file, diagnostics_, [this](const YamlNode& document) {
            return describesCompound(document) ? Definition{nullptr, readCompound(document, types_)}
                                               : Definition{readLibrary(document, types_), nullptr};
          }));
    }
  }

  void readPublished(const fs::path& folder) {
    for (const std::string& file : filesIn(folder, diagnostics_)) {
      add(file, readOrReport(file, diagnostics_, [this](const YamlNode& document) {
            return Definition{nullptr, readCompound(document, types_)};
          }));
    }
  }

 private:
  void add(const std::string& file, Definition definition) {
    if (!definition.library && !definition.compound) definition.compound = formerOf(file);
    if (definition.compound) {
      files_.compounds.push_back({file, std::move(definition.compound)});
    } else {
      files_.libraries[file] = std::move(definition.library);
    }
  }

  CompoundPtr formerOf(const std::string& file) const {
    const auto entry = former_.find(file);
    return entry == former_.end() ? nullptr : entry->second;
  }

  const TypeTable& types_;
  Diagnostics& diagnostics_;
  NameMap<CompoundPtr> former_;
  DefinitionFiles files_;
};

}  // namespace

DefinitionFiles readDefinitionFiles(const fs::path& folder, const fs::path& published,
                                    const DefinitionFiles& former, const TypeTable& types,
                                    Diagnostics& diagnostics) {
  Reader reader(former, types, diagnostics);
  reader.readFolder(folder);
  std::error_code error;
  if (!published.empty() && fs::exists(published, error)) reader.readPublished(published);
  return reader.take();
}

}  // namespace orvlib
