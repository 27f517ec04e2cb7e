#include "standalone/graph/model/CompoundObject.h"

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/published/FormerContent.h"

namespace orvlib {

CompoundObject::CompoundObject(NodeObject& node) : node_(&node) {}

CompoundObject::~CompoundObject() {
  for (NodeObject* child : nodes_.items()) child->parent_ = nullptr;
  for (AnnotationObject* annotation : annotations_.items()) annotation->parent_ = nullptr;
}

const char* CompoundObject::getName() const { return node_ ? node_->getName() : ""; }

unsigned int CompoundObject::depth() const {
  unsigned int count = 0;
  for (const NodeObject* node = node_; node && node->parent(); node = node->parent()->node_)
    ++count;
  return count;
}

bool CompoundObject::isLocked() const {
  static const std::vector<std::string> kYes{"true"};
  const auto* values = metadata().find("locked");
  return values && *values == kYes;
}

bool CompoundObject::isOpenToEdits() const {
  for (const CompoundObject* level = this; level;) {
    if (level->reference_ || level->isLocked()) return false;
    level = level->node_ ? level->node_->parent() : nullptr;
  }
  return true;
}

ORV_v1::String CompoundObject::getSpecializedTypeName() {
  return ORV_v1::GraphAccess::makeString(origin_);
}

ORV_v1::Container* CompoundObject::clientContainer() const {
  return node_ ? node_->container() : nullptr;
}

}  // namespace orvlib
