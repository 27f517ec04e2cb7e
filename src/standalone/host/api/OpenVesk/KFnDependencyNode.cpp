#include "platform/OpenVesk/KFnDependencyNode.h"

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/SceneNode.h"

VESK_API_OPEN

namespace {

std::shared_ptr<vesk::SceneNode> nodeOf(const KObject& object) {
  return std::dynamic_pointer_cast<vesk::SceneNode>(HostAccess::objectOf(object));
}

void report(KStatus* status, bool worked) {
  if (status) *status = worked ? StatusSuccess : StatusFailure;
}

}  // namespace

KFnDependencyNode::KFnDependencyNode(KObject& object, KStatus* status) : object_(object) {
  report(status, nodeOf(object) != nullptr);
}

KFnDependencyNode::~KFnDependencyNode() = default;

KUuid KFnDependencyNode::uuid(KStatus* status) const {
  const auto node = nodeOf(object_);
  report(status, node != nullptr);
  return HostAccess::uuid(node ? node->uuid() : std::string());
}

VESK_API_CLOSE
