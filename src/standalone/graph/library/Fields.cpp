#include "standalone/graph/library/Fields.h"

#include <algorithm>

#include "standalone/graph/library/Names.h"

namespace orvlib {
namespace {

std::string joined(std::initializer_list<const char*> words) {
  std::string text;
  for (const char* word : words) {
    if (!text.empty()) text += ", ";
    text += word;
  }
  return text;
}

bool isBlank(const std::string& text) { return text.find_first_not_of(" \t\r\n") == text.npos; }

std::string quoted(std::string_view text) {
  std::string result(1, '\'');
  result += text;
  result += '\'';
  return result;
}

}  // namespace

Fields::Fields(const YamlNode& mapping, std::string what, std::initializer_list<const char*> known)
    : mapping_(mapping), what_(std::move(what)) {
  if (mapping.kind != YamlNode::Kind::Mapping) {
    throw DefinitionError(mapping.position, what_ + " must be a mapping of keys to values");
  }
  for (const YamlNode& key : mapping.keys) {
    const bool isKnown =
        std::any_of(known.begin(), known.end(), [&](const char* name) { return key.text == name; });
    if (!isKnown) {
      throw DefinitionError(key.position, what_ + " has no key " + quoted(key.text) +
                                              "; its keys are " + joined(known));
    }
  }
}

const YamlNode* Fields::find(std::string_view key) const {
  for (std::size_t i = 0; i < mapping_.keys.size(); ++i) {
    if (mapping_.keys[i].text == key) return &mapping_.items[i];
  }
  return nullptr;
}

const YamlNode& Fields::at(std::string_view key) const {
  if (const YamlNode* value = find(key)) return *value;
  throw DefinitionError(mapping_.position, what_ + " lacks the key " + quoted(key));
}

const std::string& Fields::text(std::string_view key) const {
  const YamlNode& value = at(key);
  if (value.kind != YamlNode::Kind::Scalar) fail(key, quoted(key) + " must be a text");
  if (isBlank(value.text)) fail(key, quoted(key) + " is empty");
  return value.text;
}

const std::string& Fields::line(std::string_view key) const {
  const std::string& value = text(key);
  if (value.find('\n') != value.npos) fail(key, quoted(key) + " must be a single line");
  return value;
}

const std::string& Fields::identifier(std::string_view key) const {
  const std::string& value = text(key);
  if (!isIdentifier(value)) {
    fail(key, quoted(value) + " is no name: use letters, digits and '_', not a digit first");
  }
  return value;
}

const std::string& Fields::qualifiedName(std::string_view key) const {
  const std::string& value = text(key);
  if (!isQualifiedName(value)) {
    fail(key, quoted(value) + " is no library name: use names with '::' between them");
  }
  return value;
}

bool Fields::flag(std::string_view key) const {
  const YamlNode* value = find(key);
  if (!value) return false;
  const bool isTrue = value->kind == YamlNode::Kind::Scalar && value->text == "true";
  const bool isFalse = value->kind == YamlNode::Kind::Scalar && value->text == "false";
  if (!isTrue && !isFalse) fail(key, quoted(key) + " must be true or false");
  return isTrue;
}

std::span<const YamlNode> Fields::list(std::string_view key) const {
  const YamlNode* value = find(key);
  if (!value) return {};
  if (value->kind != YamlNode::Kind::Sequence) fail(key, quoted(key) + " must be a list");
  return value->items;
}

Position Fields::positionOf(std::string_view key) const {
  const YamlNode* value = find(key);
  return value ? value->position : mapping_.position;
}

void Fields::fail(std::string_view key, const std::string& reason) const {
  throw DefinitionError(positionOf(key), what_ + ": " + reason);
}

std::vector<std::string> toTexts(const YamlNode& node) {
  if (node.kind == YamlNode::Kind::Scalar) return {node.text};
  if (node.kind != YamlNode::Kind::Sequence) {
    throw DefinitionError(node.position, "a value must be a single text or a list of texts");
  }
  std::vector<std::string> texts;
  for (const YamlNode& item : node.items) {
    if (item.kind != YamlNode::Kind::Scalar) {
      throw DefinitionError(item.position, "a list of values must hold single texts alone");
    }
    texts.push_back(item.text);
  }
  return texts;
}

}  // namespace orvlib
