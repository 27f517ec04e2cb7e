#include "standalone/graph/library/LibraryReader.h"

#include <unordered_set>

#include "standalone/graph/library/PortReader.h"

namespace orvlib {
namespace {

using NameSet = std::unordered_set<std::string>;

std::shared_ptr<const NodeDescription> readNode(const YamlNode& item, const std::string& library,
                                                const TypeTable& types) {
  const Fields fields(item, "a node", {"name", "niceName", "description", "inputs", "outputs"});
  auto node = std::make_shared<NodeDescription>();
  node->name = library + "::" + fields.identifier("name");
  node->niceName = fields.line("niceName");
  node->description = fields.text("description");
  node->ports = readPorts(fields, node->name, types);
  return node;
}

void readNodes(const Fields& fields, const TypeTable& types, LibraryDescription& library) {
  NameSet names;
  for (const YamlNode& item : fields.list("nodes")) {
    auto node = readNode(item, library.name, types);
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
