#include "platform/ORV_1_0/NodeLibrary.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/library/RuntimeRegistry.h"

namespace ORV_v1 {

NodeLibrary::NodeLibrary(Rep* rep) : rep_(rep) {}
NodeLibrary::~NodeLibrary() { delete rep_; }

AddRefWrapper<NodeLibrary> NodeLibrary::findLibrary(const char* name) {
  const auto* registry = orvlib::RuntimeRegistry::current();
  return registry && name ? registry->findLibrary(name) : AddRefWrapper<NodeLibrary>();
}

unsigned int NodeLibrary::getNumberOfSubLibraries() const {
  return static_cast<unsigned int>(rep_->subLibraries.size());
}

unsigned int NodeLibrary::getNumberOfNodes() const {
  return static_cast<unsigned int>(rep_->nodes.size());
}

AddRefWrapper<NodeLibrary> NodeLibrary::getSubLibraryAt(unsigned int index) const {
  return index < rep_->subLibraries.size() ? rep_->subLibraries[index]
                                           : AddRefWrapper<NodeLibrary>();
}

AddRefWrapper<NodeDefinition> NodeLibrary::getNodeAt(unsigned int index) const {
  return index < rep_->nodes.size() ? rep_->nodes[index] : AddRefWrapper<NodeDefinition>();
}

const char* NodeLibrary::getName() const { return rep_->description->name.c_str(); }

const char* NodeLibrary::getNiceName() const { return rep_->description->niceName.c_str(); }

AddRefWrapper<NodeLibrary> GraphAccess::makeLibrary(
    std::shared_ptr<const orvlib::LibraryDescription> description) {
  return AddRefWrapper(new NodeLibrary(new NodeLibrary::Rep{std::move(description), {}, {}}));
}

std::vector<AddRefWrapper<NodeLibrary>>& GraphAccess::subLibrariesOf(NodeLibrary& library) {
  return library.rep_->subLibraries;
}

std::vector<AddRefWrapper<NodeDefinition>>& GraphAccess::nodesOf(NodeLibrary& library) {
  return library.rep_->nodes;
}

const orvlib::LibraryDescription& GraphAccess::describe(const NodeLibrary& library) {
  return *library.rep_->description;
}

}  // namespace ORV_v1
