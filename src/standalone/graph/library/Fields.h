#pragma once

#include <initializer_list>
#include <span>

#include "standalone/graph/library/YamlNode.h"

namespace orvlib {

/// Reads the keys of one mapping of a definition file. Each operation throws `DefinitionError` at
/// the place of what does not fit; `what` names the mapping in the reason, as in "a port".
class Fields {
 public:
  /// Refuses a value that is no mapping and any key that is not among `known`.
  Fields(const YamlNode& mapping, std::string what, std::initializer_list<const char*> known);

  /// Null when the key is absent.
  const YamlNode* find(std::string_view key) const;

  /// The value of a key that must be there.
  const YamlNode& at(std::string_view key) const;

  /// The text of a key that must be there and hold a value that is not blank.
  const std::string& text(std::string_view key) const;

  /// A text on a single line.
  const std::string& line(std::string_view key) const;

  /// A text that is an identifier, or several with "::" between them.
  const std::string& identifier(std::string_view key) const;
  const std::string& qualifiedName(std::string_view key) const;

  /// True or false as the key says; false when it is absent.
  bool flag(std::string_view key) const;

  /// The items of a list; none when the key is absent.
  std::span<const YamlNode> list(std::string_view key) const;

  /// The place of a key's value, or of the mapping when the key is absent.
  Position positionOf(std::string_view key) const;

  [[noreturn]] void fail(std::string_view key, const std::string& reason) const;

 private:
  const YamlNode& mapping_;
  std::string what_;
};

/// The texts of a scalar, or of a list of scalars. Throws `DefinitionError`.
std::vector<std::string> toTexts(const YamlNode& node);

}  // namespace orvlib
