#include "platform/OpenVesk/KFnDependencyNode.h"

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/SceneNode.h"

VESK_API_OPEN

namespace {

/// Null for an object that is no scene node.
const vesk::SceneNode* nodeOf(const KObject& object) {
  return dynamic_cast<const vesk::SceneNode*>(HostAccess::objectOf(object).get());
}

void report(KStatus* status, bool worked) {
  if (status) *status = worked ? StatusSuccess : StatusFailure;
}

}  // namespace

KFnDependencyNode::KFnDependencyNode(KObject& object, KStatus* status) : object_(object) {
  if (status) report(status, nodeOf(object) != nullptr);
}

KFnDependencyNode::~KFnDependencyNode() = default;

KUuid KFnDependencyNode::uuid(KStatus* status) const {
  const vesk::SceneNode* node = nodeOf(object_);
  report(status, node != nullptr);
  return node ? node->identifier() : KUuid(HostAccess::uuid({}));
}

VESK_API_CLOSE
