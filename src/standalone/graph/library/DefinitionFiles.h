#pragma once

#include <filesystem>

#include "standalone/graph/library/CompoundSet.h"
#include "standalone/graph/library/LibrarySet.h"

namespace orvlib {

/// What the definition files of a runtime hold, beside runtime.yaml.
struct DefinitionFiles {
  LibrariesByFile libraries;

  /// Those of the runtime's folder first, then the published ones, each in the order of their
  /// files.
  CompoundFiles compounds;
};

/// Reads the `.yaml` files of both folders, of which `published` may be empty, or not there. A file
/// that cannot be read gets a diagnostic; when it held a compound in `former`, it keeps that, else
/// it stands among the libraries with a null one.
DefinitionFiles readDefinitionFiles(const std::filesystem::path& folder,
                                    const std::filesystem::path& published,
                                    const DefinitionFiles& former, const TypeTable& types,
                                    Diagnostics& diagnostics);

}  // namespace orvlib
