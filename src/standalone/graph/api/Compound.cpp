#include "platform/ORV_1_0/Compound.h"

#include "standalone/graph/model/CompoundObject.h"

namespace ORV_v1 {

Compound::Compound() = default;
Compound::~Compound() = default;

AddRefWrapper<Node> Compound::getAsNode() {
  return AddRefWrapper<Node>(static_cast<orvlib::CompoundObject&>(*this).node());
}

}  // namespace ORV_v1
