#include "standalone/graph/library/LibrarySet.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

#include "standalone/graph/library/Names.h"

namespace orvlib {
namespace {

using FileByName = std::unordered_map<std::string, std::string>;

FileByName firstFiles(const LibrariesByFile& libraries) {
  FileByName files;
  for (const auto& [file, library] : libraries) files.emplace(library->name, file);
  return files;
}

/// Why the library of this file does not fit among those of the other files; empty when it fits.
std::string misfitReason(const std::string& file, const LibraryDescription& library,
                         const FileByName& files, const std::string& rootName) {
  if (const std::string& first = files.at(library.name); first != file) {
    return "the library '" + library.name + "' is already defined in " + first;
  }
  if (library.name == rootName) return {};
  const std::string parent(parentName(library.name));
  if (!parent.empty()) {
    if (files.contains(parent)) return {};
    return "the parent library '" + parent + "' of '" + library.name + "' is not loaded";
  }
  if (rootName.empty()) {
    return "the library '" + library.name + "' has no place: the runtime has no root library";
  }
  return "the library '" + library.name + "' does not lie under the root library '" + rootName +
         "'";
}

class Chooser {
 public:
  Chooser(const LibrariesByFile& current, const LibrariesByFile& lastGood,
          const std::string& rootName)
      : chosen_(current), lastGood_(lastGood), rootName_(rootName) {}

  LibrariesByFile choose(Diagnostics& diagnostics) {
    replaceUnreadable();
    // A library that is taken out leaves its own sub-libraries without a parent, so look again.
    for (Misfits misfits = findMisfits(); !misfits.empty(); misfits = findMisfits()) {
      for (const Misfit& misfit : misfits) {
        const Position at = chosen_.at(misfit.file)->namePosition;
        diagnostics.push_back({misfit.file, at.line, at.column, misfit.reason});
        fallBack(misfit.file);
      }
    }
    return std::move(chosen_);
  }

 private:
  struct Misfit {
    std::string file;
    std::string reason;
  };
  using Misfits = std::vector<Misfit>;

  LibraryPtr formerOf(const std::string& file) const {
    const auto former = lastGood_.find(file);
    return former == lastGood_.end() ? nullptr : former->second;
  }

  bool isRenamed(const std::string& file) const {
    const LibraryPtr former = formerOf(file);
    return former && former->name != chosen_.at(file)->name;
  }

  void replaceUnreadable() {
    for (auto& [file, library] : chosen_) {
      if (!library) library = formerOf(file);
    }
    std::erase_if(chosen_, [](const auto& entry) { return !entry.second; });
  }

  Misfits findMisfits() const {
    const FileByName files = firstFiles(chosen_);
    Misfits misfits;
    for (const auto& [file, library] : chosen_) {
      std::string reason = misfitReason(file, *library, files, rootName_);
      if (!reason.empty()) misfits.push_back({file, std::move(reason)});
    }
    return renamedFirst(std::move(misfits));
  }

  /// A renamed library that gets its former name back may be the parent that others miss.
  Misfits renamedFirst(Misfits misfits) const {
    const auto renamed = [this](const Misfit& misfit) { return isRenamed(misfit.file); };
    if (std::any_of(misfits.begin(), misfits.end(), renamed)) {
      std::erase_if(misfits, std::not_fn(renamed));
    }
    return misfits;
  }

  /// Whether a library fits depends on its name alone, so a former one of the same name is no help.
  void fallBack(const std::string& file) {
    if (isRenamed(file)) {
      chosen_.at(file) = formerOf(file);
    } else {
      chosen_.erase(file);
    }
  }

  LibrariesByFile chosen_;
  const LibrariesByFile& lastGood_;
  const std::string& rootName_;
};

}  // namespace

LibrariesByFile chooseLibraries(const LibrariesByFile& current, const LibrariesByFile& lastGood,
                                const std::string& rootName, Diagnostics& diagnostics) {
  return Chooser(current, lastGood, rootName).choose(diagnostics);
}

}  // namespace orvlib
