#pragma once

#include <string>
#include <vector>

#include "standalone/graph/library/CompoundDescription.h"
#include "standalone/graph/library/LibrarySet.h"

namespace orvlib {

/// A published compound and the file that it comes from.
struct CompoundFile {
  std::string file;
  CompoundPtr compound;
};
using CompoundFiles = std::vector<CompoundFile>;

/// Chooses the compounds that can join `libraries`: their library is the root library or lies under
/// it, and no other definition has their name. Of two with one name the first keeps it. What is
/// left out gets a diagnostic, and its file falls back to what it held in `lastGood`, when that
/// fits.
CompoundFiles chooseCompounds(const CompoundFiles& current, const CompoundFiles& lastGood,
                              const LibrariesByFile& libraries, const std::string& rootName,
                              Diagnostics& diagnostics);

/// Whether a library of that name is the root library or would lie under it.
bool liesUnderRoot(std::string_view library, std::string_view rootName);

/// "My blur" for "core::my_blur".
std::string niceNameOf(std::string_view qualifiedName);

}  // namespace orvlib
