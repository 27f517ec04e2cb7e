#pragma once

#include <map>

#include "standalone/graph/library/Diagnostic.h"
#include "standalone/graph/library/LibraryDescription.h"

namespace orvlib {

using LibraryPtr = std::shared_ptr<const LibraryDescription>;

/// Libraries by the file they come from.
using LibrariesByFile = std::map<std::string, LibraryPtr>;

/// Chooses out of what each file holds now, and held when it was last good, the libraries that fit
/// together: no name twice, the root library on top, and every parent present.
///
/// A file whose library does not fit gets a diagnostic and falls back to its last good library;
/// when that does not fit either, it has none. Of two files with one name the first keeps it. A
/// file that is absent from `current` is gone; a null library in it could not be read.
LibrariesByFile chooseLibraries(const LibrariesByFile& current, const LibrariesByFile& lastGood,
                                const std::string& rootName, Diagnostics& diagnostics);

}  // namespace orvlib
