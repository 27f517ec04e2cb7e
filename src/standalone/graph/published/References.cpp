// How a compound goes back to the published one that it comes from, and follows it or not.

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/published/FormerContent.h"
#include "standalone/graph/published/Instances.h"

namespace orvlib {
namespace {

FaultPoint kCanReset("Compound canResetToFactory");
FaultPoint kReset("Compound resetToFactory");
FaultPoint kSetReferenced("Compound setIsReferenced");

/// Runs `change` as one transaction, in a bracket when the node is in a graph.
template <class Change>
bool runWhole(NodeObject& node, Change change) {
  ContainerObject* container = node.container();
  std::optional<ChangeHold> hold;
  if (container) hold.emplace(*container);
  Transaction edits;
  if (change(edits)) return true;
  edits.rollback();
  return false;
}

NodeRef newInstance(const CompoundObject& compound) {
  const auto definition = offeredOrigin(compound);
  if (definition == nullptr) return {};
  return makeInstance(compound.node()->core(), *definition, compound.node()->name());
}

bool isInOpenLevel(const CompoundObject& compound) {
  const CompoundObject* level = compound.node() ? compound.node()->parent() : nullptr;
  return level && level->isOpenToEdits();
}

}  // namespace

bool CompoundObject::canResetToFactory() {
  return !kCanReset.refuses() && isImported() && isOpenToEdits() && !holdsPublishedContent(*this);
}

void CompoundObject::resetToFactory() {
  if (kReset.refuses() || !canResetToFactory()) return;
  const NodeRef instance = newInstance(*this);
  if (instance == nullptr) return;
  TakenLevel former;
  TakenLevel fresh;
  LostWires lost;
  runWhole(*node_, [&](Transaction& edits) {
    return takeLevel(edits, *this, former) && takeLevel(edits, *instance->compound(), fresh) &&
           putLevel(edits, *this, fresh, lost);
  });
}

bool CompoundObject::setIsReferenced(bool referenced) {
  if (kSetReferenced.refuses()) return false;
  if (referenced == reference_) return true;
  return referenced ? becomeReference() : becomeLocal();
}

bool CompoundObject::becomeReference() {
  const bool mayChange = isInOpenLevel(*this) && isOpenToEdits();
  const NodeRef instance = mayChange ? newInstance(*this) : NodeRef();
  if (instance == nullptr || !mayHold(*this, *instance->compound())) return false;
  auto former = std::make_unique<FormerContent>();
  TakenLevel fresh;
  const bool done = runWhole(*node_, [&](Transaction& edits) {
    return takeLevel(edits, *this, former->level) &&
           takeLevel(edits, *instance->compound(), fresh) &&
           putLevel(edits, *this, fresh, former->lost) &&
           edits.run(SetOrigin{CompoundRef(this), origin_, true});
  });
  if (done) former_ = std::move(former);
  return done;
}

bool CompoundObject::becomeLocal() {
  if (!isInOpenLevel(*this)) return false;
  if (former_ && !mayHold(*this, *former_->level.carrier->compound())) return false;
  TakenLevel shown;
  LostWires lost;
  const bool done = runWhole(*node_, [&](Transaction& edits) {
    if (former_) {
      if (!takeLevel(edits, *this, shown) || !putLevel(edits, *this, former_->level, lost)) {
        return false;
      }
      restoreWires(edits, former_->lost);
    }
    return edits.run(SetOrigin{CompoundRef(this), origin_, false});
  });
  if (done) former_.reset();
  return done;
}

}  // namespace orvlib
