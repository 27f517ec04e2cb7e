#include "standalone/graph/library/CompoundReader.h"

#include <algorithm>

#include "standalone/graph/library/Names.h"
#include "standalone/graph/library/PortReader.h"

namespace orvlib {
namespace {

constexpr const char* kNameKey = "compound";

std::string readName(const Fields& fields) {
  const std::string& name = fields.qualifiedName(kNameKey);
  if (parentName(name).empty()) {
    fields.fail(kNameKey, "'" + name + "' names no library: put one and '::' before it");
  }
  return name;
}

}  // namespace

bool describesCompound(const YamlNode& document) {
  return std::ranges::any_of(document.keys,
                             [](const YamlNode& key) { return key.text == kNameKey; });
}

CompoundPtr readCompound(const YamlNode& document, const TypeTable& types) {
  const Fields fields(document, "a compound",
                      {kNameKey, "niceName", "description", "inputs", "outputs", "content"});
  auto node = std::make_shared<NodeDescription>();
  node->name = readName(fields);
  node->niceName = fields.line("niceName");
  node->description = fields.text("description");
  node->ports = readPorts(fields, node->name, types);
  node->content = fields.text("content");
  return std::make_shared<const CompoundDescription>(
      CompoundDescription{std::move(node), fields.positionOf(kNameKey)});
}

}  // namespace orvlib
