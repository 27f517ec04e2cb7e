#pragma once

#include <filesystem>

#include "standalone/graph/library/Diagnostic.h"
#include "standalone/graph/library/YamlNode.h"

namespace orvlib {

/// Reads a file of UTF-8 YAML. Throws `DefinitionError` for what cannot be read, is no text, is
/// larger than any definition file, or is empty.
YamlNode readDefinitionFile(const std::filesystem::path& file);

/// The same of the text that such a file would have.
YamlNode parseDefinition(const std::string& text);

/// What `read` makes of the file's document, or an empty result with a diagnostic.
template <class Read>
auto readOrReport(const std::filesystem::path& file, Diagnostics& diagnostics, Read read)
    -> decltype(read(YamlNode())) {
  try {
    return read(readDefinitionFile(file));
  } catch (const DefinitionError& error) {
    const Position position = error.position();
    diagnostics.push_back({file.string(), position.line, position.column, error.what()});
    return {};
  }
}

}  // namespace orvlib
