#include "standalone/graph/model/CompoundObject.h"

#include <algorithm>

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

/// From the top down, then up again, since the levels may be too many for calls.
unsigned int CompoundObject::countHeight() const {
  std::vector<const CompoundObject*> levels{this};
  for (std::size_t i = 0; i < levels.size(); ++i) {
    levels[i]->heightBound_ = 0;
    for (const NodeObject* node : levels[i]->nodes_.items()) {
      if (node->compound()) levels.push_back(node->compound());
    }
  }
  for (std::size_t i = levels.size(); --i > 0;) {
    unsigned int& above = levels[i]->node_->parent()->heightBound_;
    above = std::max(above, levels[i]->heightBound_ + 1);
  }
  return heightBound_;
}

bool CompoundObject::isNoHigherThan(unsigned int levels) const {
  return heightBound_ <= levels || countHeight() <= levels;
}

/// Whatever is high enough already has only such levels above it.
void CompoundObject::raiseHeight(unsigned int childHeight) {
  CompoundObject* level = this;
  for (unsigned int least = childHeight + 1; level && level->heightBound_ < least; ++least) {
    level->heightBound_ = least;
    level = level->node_ ? level->node_->parent() : nullptr;
  }
}

bool CompoundObject::hasRoomFor(const NodeObject& node, unsigned int deepest) const {
  const CompoundObject* inside = node.compound();
  if (!inside) return true;
  const unsigned int above = depth();
  return above < deepest && inside->isNoHigherThan(deepest - above - 1);
}

bool CompoundObject::hasRoomForContentOf(const CompoundObject& other) const {
  return other.isNoHigherThan(kDeepest - std::min(kDeepest, depth()));
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
