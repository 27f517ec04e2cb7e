// What a runtime does to offer a compound that a user publishes.

#include <algorithm>

#include "standalone/graph/library/AtomicFile.h"
#include "standalone/graph/library/CompoundReader.h"
#include "standalone/graph/library/CompoundWriter.h"
#include "standalone/graph/library/DefinitionFile.h"
#include "standalone/graph/library/LoadedRuntime.h"

namespace orvlib {
namespace {

namespace fs = std::filesystem;

/// "core.user.blur.yaml" for "core::user::blur".
std::string fileNameOf(std::string_view name) {
  std::string file;
  for (const char c : name) {
    if (c != ':') {
      file += c;
    } else if (file.back() != '.') {
      file += '.';
    }
  }
  return file + ".yaml";
}

/// Of a file that was found in one of the runtime's folders.
bool liesIn(const fs::path& folder, const std::string& file) {
  return fs::path(file).parent_path() == folder;
}

/// The folders that `create_directories` made, which go again unless they are kept.
class NewFolders {
 public:
  /// Makes the folder and those above it. Empty, or the reason.
  std::string make(const fs::path& folder) {
    std::error_code error;
    for (fs::path each = folder; !each.empty() && !fs::exists(each, error);) {
      made_.push_back(each);
      each = each.parent_path();
    }
    fs::create_directories(folder, error);
    if (!error) return {};
    return "the folder '" + folder.string() + "' cannot be made: " + error.message();
  }
  void keep() { made_.clear(); }
  ~NewFolders() {
    std::error_code ignored;
    for (const fs::path& folder : made_) fs::remove(folder, ignored);
  }

 private:
  std::vector<fs::path> made_;
};

/// A definition as text, and as it is read back.
struct Checked {
  std::string text;
  CompoundPtr compound;
  std::string reason;
};

Checked checked(const NodeDescription& node, const TypeTable& types) {
  Checked result;
  result.text = writeCompound(node);
  try {
    result.compound = readCompound(parseDefinition(result.text), types);
  } catch (const DefinitionError& error) {
    result.reason = error.what();
    return result;
  }
  const NodeDescription& read = *result.compound->node;
  if (read.content != node.content || read.name != node.name) {
    result.reason = "its content cannot be written as text";
  }
  return result;
}

std::string writeFile(const fs::path& file, std::string_view text) {
  const std::string reason = writeAtomically(file, text);
  return reason.empty() ? reason : "the file '" + file.string() + "' cannot be written: " + reason;
}

}  // namespace

std::string LoadedRuntime::writeDefinition(const NodeDescription& node,
                                           const fs::path& file) const {
  const Checked definition = checked(node, description_->types);
  return definition.reason.empty() ? writeFile(file, definition.text) : definition.reason;
}

bool LoadedRuntime::isInPublishedFolder(const fs::path& file) const {
  std::error_code error;
  if (published_.empty() || file.extension() != ".yaml") return false;
  const fs::path folder = fs::weakly_canonical(fs::absolute(file).parent_path(), error);
  return !error && folder == fs::weakly_canonical(fs::absolute(published_), error);
}

std::string LoadedRuntime::whyTaken(const Publication& publication, const std::string& file) const {
  const std::string& name = publication.node.name;
  const std::string known = compoundFile(name);
  if (known.empty() && findNode(name)) {
    return "the library has a node of that name that is no published compound";
  }
  if (!known.empty() && !liesIn(published_, known)) {
    return "it is defined in '" + known + "', which is not in the folder of published compounds";
  }
  if (!known.empty() && known != file) return "it is defined in '" + known + "' already";
  for (const CompoundFile& entry : compounds_) {
    const std::string& other = entry.compound->node->name;
    if (entry.file == file && other != name) return "the file '" + file + "' holds '" + other + "'";
  }
  std::error_code error;
  if (publication.replace || (known.empty() && !fs::exists(file, error))) return {};
  return known.empty() ? "the file '" + file + "' is there already"
                       : "a compound of that name is published already";
}

CompoundFiles LoadedRuntime::withCompound(CompoundFile entry) const {
  CompoundFiles files = compounds_;
  const auto place = std::ranges::find_if(files, [&](const CompoundFile& other) {
    return liesIn(published_, other.file) && other.file >= entry.file;
  });
  if (place != files.end() && place->file == entry.file) {
    *place = std::move(entry);
  } else {
    files.insert(place, std::move(entry));
  }
  return files;
}

std::string LoadedRuntime::publish(const Publication& publication) {
  if (published_.empty()) return "no folder for published compounds is set";
  const std::string& name = publication.node.name;
  const std::string known = compoundFile(name);
  const bool keepsFile = publication.file.empty() && liesIn(published_, known);
  const fs::path named =
      publication.file.empty() ? fileNameOf(name) : publication.file.filename().string();
  const std::string file = keepsFile ? known : (published_ / named).string();
  if (std::string reason = whyTaken(publication, file); !reason.empty()) return reason;
  const Checked definition = checked(publication.node, description_->types);
  if (!definition.reason.empty()) return definition.reason;
  Diagnostics diagnostics;
  CompoundFiles compounds = chooseCompounds(withCompound({file, definition.compound}), {},
                                            libraries_, description_->rootLibrary, diagnostics);
  if (!diagnostics.empty()) return diagnostics.front().reason;
  NewFolders folders;
  if (std::string reason = folders.make(published_); !reason.empty()) return reason;
  if (std::string reason = writeFile(file, definition.text); !reason.empty()) return reason;
  folders.keep();
  setCompounds(std::move(compounds));
  return {};
}

}  // namespace orvlib
