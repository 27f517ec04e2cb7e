#include "standalone/graph/library/CompoundSet.h"

#include <algorithm>
#include <unordered_map>

#include "standalone/graph/library/Names.h"

namespace orvlib {
namespace {

class Chooser {
 public:
  Chooser(const CompoundFiles& lastGood, const LibrariesByFile& libraries,
          const std::string& rootName)
      : rootName_(rootName) {
    for (const CompoundFile& entry : lastGood) lastGood_.emplace(entry.file, entry.compound);
    for (const auto& [file, library] : libraries) {
      hasRoot_ = hasRoot_ || library->name == rootName;
      for (const auto& node : library->nodes) fileByName_.emplace(node->name, file);
    }
  }

  CompoundFiles choose(const CompoundFiles& current, Diagnostics& diagnostics) {
    CompoundFiles chosen;
    for (const CompoundFile& entry : current) {
      if (const CompoundPtr fitting = fittingOf(entry, diagnostics)) {
        fileByName_.emplace(fitting->node->name, entry.file);
        chosen.push_back({entry.file, fitting});
      }
    }
    return chosen;
  }

 private:
  CompoundPtr fittingOf(const CompoundFile& entry, Diagnostics& diagnostics) const {
    const std::string reason = misfitReason(entry.compound->node->name);
    if (reason.empty()) return entry.compound;
    const Position at = entry.compound->namePosition;
    diagnostics.push_back({entry.file, at.line, at.column, reason});
    const auto former = lastGood_.find(entry.file);
    const bool fits = former != lastGood_.end() && misfitReason(former->second->node->name).empty();
    return fits ? former->second : nullptr;
  }

  /// Empty when a compound of that name fits.
  std::string misfitReason(const std::string& name) const {
    const std::string quoted = "the compound '" + name + "'";
    if (rootName_.empty()) return quoted + " has no place: the runtime has no root library";
    if (!liesUnderRoot(parentName(name), rootName_)) {
      return quoted + " does not lie under the root library '" + rootName_ + "'";
    }
    if (!hasRoot_) return "the root library '" + rootName_ + "' of '" + name + "' is not loaded";
    const auto taken = fileByName_.find(name);
    return taken == fileByName_.end() ? "" : quoted + " is already defined in " + taken->second;
  }

  const std::string& rootName_;
  std::unordered_map<std::string, CompoundPtr> lastGood_;
  std::unordered_map<std::string, std::string> fileByName_;
  bool hasRoot_ = false;
};

}  // namespace

CompoundFiles chooseCompounds(const CompoundFiles& current, const CompoundFiles& lastGood,
                              const LibrariesByFile& libraries, const std::string& rootName,
                              Diagnostics& diagnostics) {
  return Chooser(lastGood, libraries, rootName).choose(current, diagnostics);
}

bool liesUnderRoot(std::string_view library, std::string_view rootName) {
  if (!library.starts_with(rootName)) return false;
  const std::string_view rest = library.substr(rootName.size());
  return rest.empty() || rest.starts_with("::");
}

std::string niceNameOf(std::string_view qualifiedName) {
  const auto colon = qualifiedName.rfind(':');
  std::string name(colon == qualifiedName.npos ? qualifiedName : qualifiedName.substr(colon + 1));
  std::ranges::replace(name, '_', ' ');
  name.erase(0, name.find_first_not_of(' '));
  if (name.empty()) return std::string(qualifiedName);
  // Not std::toupper: that follows the locale in force.
  if (name.front() >= 'a' && name.front() <= 'z') {
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
  }
  return name;
}

}  // namespace orvlib
