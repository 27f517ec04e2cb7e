#pragma once

#include <string>
#include <vector>

#include "standalone/graph/library/DefinitionError.h"

namespace orvlib {

/// One value of a YAML document, with its place in the file.
struct YamlNode {
  enum class Kind { Null, Scalar, Sequence, Mapping };

  Kind kind = Kind::Null;
  Position position;

  /// The text of a scalar, as written: "0.50" stays "0.50".
  std::string text;

  /// The elements of a sequence, or the values of a mapping.
  std::vector<YamlNode> items;

  /// The keys of a mapping, one for each of `items`; all are scalars, and no two are equal.
  std::vector<YamlNode> keys;
};

/// Reads one document. Anchors, aliases, tags, doubled keys, several documents, deep nesting and
/// mappings of very many keys are refused: a definition needs none of them. Throws
/// `DefinitionError`.
YamlNode parseYaml(const std::string& text);

}  // namespace orvlib
