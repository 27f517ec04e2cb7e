#include "standalone/graph/library/RuntimeContent.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/library/Names.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

void addTypes(const TypeTable& types, RuntimeContent& content) {
  for (const TypeHandle& type : types.all()) {
    content.portTypes.push_back(GraphAccess::makePortType(type));
    content.typesByName.emplace(type->name, content.portTypes.back());
  }
}

void addNodes(const LibraryDescription& library, RuntimeContent& content,
              std::vector<ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition>>& nodes) {
  for (const auto& node : library.nodes) {
    nodes.push_back(GraphAccess::makeNode(node));
    content.nodesByName.emplace(node->name, nodes.back());
  }
}

void addLibraries(const LibrariesByFile& libraries, RuntimeContent& content) {
  for (const auto& [file, description] : libraries) {
    auto library = GraphAccess::makeLibrary(description);
    addNodes(*description, content, GraphAccess::nodesOf(*library));
    content.librariesByName.emplace(description->name, std::move(library));
  }
}

}  // namespace

RuntimeContent makeContent(const RuntimeDescription& runtime, const LibrariesByFile& libraries) {
  RuntimeContent content;
  addTypes(runtime.types, content);
  addLibraries(libraries, content);
  for (const auto& [file, description] : libraries) {
    auto library = content.librariesByName.find(description->name)->second;
    const auto parent = content.librariesByName.find(parentName(description->name));
    if (parent == content.librariesByName.end()) {
      content.rootLibrary = std::move(library);
    } else {
      GraphAccess::subLibrariesOf(*parent->second).push_back(std::move(library));
    }
  }
  return content;
}

}  // namespace orvlib
