#include "platform/ORV_1_0/NodeStateFlags.h"

#include "standalone/graph/model/StateFlagsObject.h"

namespace ORV_v1 {

using orvlib::StateFlagsObject;

NodeStateFlags::NodeStateFlags() = default;
NodeStateFlags::~NodeStateFlags() = default;

unsigned int NodeStateFlags::size() const { return StateFlagsObject::kCount; }

const NodeStateFlag& NodeStateFlags::operator[](unsigned int index) const {
  static const NodeStateFlag none;
  return index < size() ? static_cast<const StateFlagsObject&>(*this).at(index) : none;
}

void NodeStateFlags::update(unsigned int index, const NodeStateFlag& flag) {
  if (index < size()) static_cast<StateFlagsObject&>(*this).note(index, flag.state == 0);
}

}  // namespace ORV_v1
