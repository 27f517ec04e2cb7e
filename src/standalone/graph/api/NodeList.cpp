#include "platform/ORV_1_0/NodeList.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/CompoundObject.h"

namespace ORV_v1 {
namespace {

using orvlib::ListKind;
using orvlib::NodeListObject;
using orvlib::NodeObject;

orvlib::FaultPoint kAdd("NodeList add");

const NodeListObject& object(const NodeList& list) {
  return static_cast<const NodeListObject&>(list);
}

}  // namespace

NodeList::NodeList() = default;
NodeList::~NodeList() = default;

AddRefWrapper<NodeList> NodeList::createNew(Compound*) {
  return AddRefWrapper<NodeList>(new NodeListObject(ListKind::Collected));
}

bool NodeList::add(AddRefWrapper<Node> node) {
  auto& list = static_cast<NodeListObject&>(*this);
  auto* item = static_cast<NodeObject*>(node.get());
  if (kAdd.refuses() || !item) return false;
  if (list.kind() != ListKind::Collected || list.contains(item)) return false;
  list.append(item);
  return true;
}

unsigned int NodeList::size() const { return object(*this).count(); }

AddRefWrapper<Node> NodeList::operator[](unsigned int index) const {
  return AddRefWrapper<Node>(object(*this).at(index));
}

AddRefWrapper<Node> NodeList::operator[](const char* name) const {
  return AddRefWrapper<Node>(name ? object(*this).find(name) : nullptr);
}

ListIterator<NodeList> NodeList::begin() const { return {*this, 0}; }

ListIterator<NodeList> NodeList::end() const { return {*this, size()}; }

}  // namespace ORV_v1
