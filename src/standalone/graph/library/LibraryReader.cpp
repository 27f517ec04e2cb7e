#include "standalone/graph/library/LibraryReader.h"

#include <unordered_set>

#include "standalone/graph/library/Fields.h"
#include "standalone/graph/library/ValueReader.h"

namespace orvlib {
namespace {

using NameSet = std::unordered_set<std::string>;

TypeHandle readType(const Fields& fields, const TypeTable& types) {
  TypeHandle type = types.find(fields.text("type"));
  if (!type) fields.fail("type", "the runtime has no port type '" + fields.text("type") + "'");
  return type;
}

PortDescription readPort(const YamlNode& node, PortDirection direction, const TypeTable& types) {
  const bool isInput = direction == PortDirection::Input;
  const Fields fields = isInput
                            ? Fields(node, "an input", {"name", "type", "default", "description"})
                            : Fields(node, "an output", {"name", "type", "description"});
  PortDescription port;
  port.name = fields.identifier("name");
  port.direction = direction;
  port.type = readType(fields, types);
  port.defaultValue = readDefault(fields, *port.type, port.type->defaultValue);
  port.description = fields.text("description");
  return port;
}

class NodeReader {
 public:
  NodeReader(const YamlNode& node, const std::string& library, const TypeTable& types)
      : fields_(node, "a node", {"name", "niceName", "description", "inputs", "outputs"}),
        types_(types) {
    node_.name = library + "::" + fields_.identifier("name");
    node_.niceName = fields_.line("niceName");
    node_.description = fields_.text("description");
    readPorts("inputs", PortDirection::Input);
    readPorts("outputs", PortDirection::Output);
  }

  NodeDescription take() { return std::move(node_); }

 private:
  void readPorts(const char* key, PortDirection direction) {
    for (const YamlNode& item : fields_.list(key)) {
      PortDescription port = readPort(item, direction, types_);
      if (!portNames_.insert(port.name).second) {
        throw DefinitionError(
            item.position,
            "node '" + node_.name + "' has more than one port named '" + port.name + "'");
      }
      node_.ports.push_back(std::move(port));
    }
  }

  Fields fields_;
  const TypeTable& types_;
  NodeDescription node_;
  NameSet portNames_;
};

void readNodes(const Fields& fields, const TypeTable& types, LibraryDescription& library) {
  NameSet names;
  for (const YamlNode& item : fields.list("nodes")) {
    auto node =
        std::make_shared<const NodeDescription>(NodeReader(item, library.name, types).take());
    if (!names.insert(node->name).second) {
      throw DefinitionError(item.position,
                            "the library has more than one node named '" + node->name + "'");
    }
    library.nodes.push_back(std::move(node));
  }
}

}  // namespace

std::shared_ptr<const LibraryDescription> readLibrary(const YamlNode& document,
                                                      const TypeTable& types) {
  const Fields fields(document, "a library", {"library", "niceName", "description", "nodes"});
  LibraryDescription library;
  library.name = fields.qualifiedName("library");
  library.namePosition = fields.positionOf("library");
  library.niceName = fields.line("niceName");
  library.description = fields.text("description");
  readNodes(fields, types, library);
  return std::make_shared<const LibraryDescription>(std::move(library));
}

}  // namespace orvlib
