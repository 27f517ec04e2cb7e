#include "platform/ORV_1_0/Node.h"

#include "standalone/graph/model/ContainerObject.h"

namespace ORV_v1 {
namespace {

orvlib::NodeObject& object(Node& node) { return static_cast<orvlib::NodeObject&>(node); }

}  // namespace

Node::Node() = default;
Node::~Node() = default;

Container* Node::getContainer() const {
  return static_cast<const orvlib::NodeObject&>(*this).container();
}

AddRefWrapper<Compound> Node::getParentCompound() {
  return AddRefWrapper<Compound>(object(*this).parent());
}

PortList& Node::inputs() { return object(*this).inputList(); }

PortList& Node::outputs() { return object(*this).outputList(); }

}  // namespace ORV_v1
