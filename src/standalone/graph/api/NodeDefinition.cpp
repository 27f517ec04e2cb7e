#include "platform/ORV_1_0/NodeDefinition.h"

#include "standalone/graph/api/GraphAccess.h"

namespace ORV_v1 {

NodeDefinition::NodeDefinition(Rep* rep) : rep_(rep) {}
NodeDefinition::~NodeDefinition() { delete rep_; }

const char* NodeDefinition::getName() const { return rep_->description->name.c_str(); }

const char* NodeDefinition::getNiceName() const { return rep_->description->niceName.c_str(); }

AddRefWrapper<NodeDefinition> GraphAccess::makeNode(
    std::shared_ptr<const orvlib::NodeDescription> description) {
  return AddRefWrapper(new NodeDefinition(new NodeDefinition::Rep{std::move(description)}));
}

const orvlib::NodeDescription& GraphAccess::describe(const NodeDefinition& node) {
  return *node.rep_->description;
}

std::shared_ptr<const orvlib::NodeDescription> GraphAccess::sharedDescription(
    const NodeDefinition& node) {
  return node.rep_->description;
}

}  // namespace ORV_v1
