#include "standalone/widgets/compound/edits/NodeEdits.h"

#include <algorithm>

#include "platform/ORV_1_0/AnnotationList.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvlib::NodeObject;
using orvUI_v1::CommandHook;

namespace {

/// The one that stands last, when there are more than `before`.
NodeObject* newestNode(const EditSession& session, unsigned int before) {
  const auto& nodes = session.level().nodes();
  return nodes.count() > before ? nodes.at(nodes.count() - 1) : nullptr;
}

NodeObject* makeCompound(EditSession& session) {
  const auto nodes = ORV_v1::NodeList::createNew(nullptr);
  const auto annotations = ORV_v1::AnnotationList::createNew();
  const unsigned int before = session.level().nodes().count();
  CommandHook::CompoundHandle made;
  session.hook().createCompound("compound", {session.levelHandle(), nodes.get(), annotations.get()},
                                made);
  return newestNode(session, before);
}

NodeObject* makeNode(EditSession& session, const NewNode& what) {
  using Kind = NewNode::Kind;
  if (what.kind == Kind::Compound) return makeCompound(session);
  const auto level = session.levelHandle();
  if (what.kind == Kind::Definition) {
    return EditSession::object(session.hook().addNode(level, what.type, {}));
  }
  const auto flag =
      what.kind == Kind::Input ? ORV_v1::NodeFlags::kInputNode : ORV_v1::NodeFlags::kOutputNode;
  return EditSession::object(session.hook().addIONode(level, flag, {}));
}

/// What gives to the port ends at the place, what takes from it begins there; in a wire it lies
/// around it.
QPointF cornerOf(const EditSession& session, NodeObject& node, const NodePlace& place) {
  if (!place.connectTo || !(place.wireTo || place.connectTo->isInput())) return place.position;
  BoxItem box;
  box.node = orvlib::NodeRef(&node);
  layOut(box, {}, session.scene().theme());
  if (place.wireTo) return place.position - QRectF(QPointF(), box.bounds.size()).center();
  return place.position - QPointF(box.bounds.width(), 0);
}

bool connectAt(EditSession& session, NodeObject& node, const NodePlace& place) {
  if (!place.connectTo) return true;
  if (!place.wireTo) return connectToFirstFitting(session, *place.connectTo, node);
  return insertNode(session, {orvlib::PortRef(place.connectTo), orvlib::PortRef(place.wireTo)},
                    node);
}

}  // namespace

bool setPosition(EditSession& session, NodeObject& node, const QPointF& position) {
  const QString text = placement::toText(position);
  if (placement::textIn(node.metadata(), placement::kPosition) == text) return true;
  session.hook().setMetaData(CommandHook::kTargetNode, EditSession::handle(node),
                             QLatin1String(placement::kPosition), text);
  return placement::textIn(node.metadata(), placement::kPosition) == text;
}

ORV_v1::AddRefWrapper<ORV_v1::NodeList> selectedNodeList(const LevelScene& scene) {
  auto list = ORV_v1::NodeList::createNew(scene.level());
  for (BoxItem* box : scene.selectedBoxes()) list->add(EditSession::handle(*box->node));
  return list;
}

ORV_v1::AddRefWrapper<ORV_v1::AnnotationList> selectedAnnotationList(const LevelScene& scene) {
  auto list = ORV_v1::AnnotationList::createNew();
  for (NoteItem* note : scene.selectedNotes()) {
    list->add(ORV_v1::AddRefWrapper<ORV_v1::Annotation>(note->annotation.get()));
  }
  return list;
}

NodeObject* addNode(EditSession& session, const NewNode& what, const NodePlace& place) {
  if (what.kind == NewNode::Kind::Backdrop) {
    addBackdrop(session, QRectF(place.position, QSizeF(260, 160)));
    return nullptr;
  }
  if (what.kind == NewNode::Kind::StickyNote) {
    addStickyNote(session, place.position);
    return nullptr;
  }
  EditStep step(session, place.wireTo ? QStringLiteral("Insert") : QStringLiteral("Add node"));
  NodeObject* node = makeNode(session, what);
  if (!step.require(node)) return nullptr;
  step.require(setPosition(session, *node, cornerOf(session, *node, place)));
  step.require(connectAt(session, *node, place));
  return node;
}

namespace {

bool moveBoundary(EditSession& session, const BoxItem& box, const QPointF& position) {
  const char* key = positionKeyOf(box);
  const QString text = placement::toText(position);
  if (placement::textIn(session.level().metadata(), key) == text) return true;
  session.hook().setMetaData(CommandHook::kTargetCompound, EditSession::handle(*box.node),
                             QLatin1String(key), text);
  return placement::textIn(session.level().metadata(), key) == text;
}

/// Whether the graph says so already.
bool isThere(const EditSession& session, const Moved& moved) {
  const QString position = placement::toText(moved.position);
  if (moved.note) {
    const auto& metadata = moved.note->annotation->metadata();
    const bool sized =
        !moved.size || placement::textIn(metadata, placement::kSize) ==
                           placement::toText({moved.size->width(), moved.size->height()});
    return sized && placement::textIn(metadata, placement::kPosition) == position;
  }
  const bool isNode = moved.box->kind == BoxKind::Node;
  const auto& metadata = isNode ? moved.box->node->metadata() : session.level().metadata();
  return placement::textIn(metadata, positionKeyOf(*moved.box)) == position;
}

bool moveOne(EditSession& session, const Moved& moved) {
  if (moved.note && moved.size) {
    return setNoteBounds(session, *moved.note->annotation, {moved.position, *moved.size});
  }
  if (moved.note) {
    return setNoteValue(session, *moved.note->annotation, placement::kPosition,
                        placement::toText(moved.position));
  }
  if (moved.box->kind == BoxKind::Node) {
    return setPosition(session, *moved.box->node, moved.position);
  }
  return moveBoundary(session, *moved.box, moved.position);
}

}  // namespace

void move(EditSession& session, const std::vector<Moved>& moved, const Wire* insertInto) {
  const bool allThere =
      std::ranges::all_of(moved, [&session](const Moved& each) { return isThere(session, each); });
  if (allThere && !insertInto) return;
  // A program may tell of each edit at once, and make the wire anew.
  const Joint joint = insertInto ? Joint{insertInto->source, insertInto->target} : Joint();
  const orvlib::NodeRef first = moved.front().box ? moved.front().box->node : orvlib::NodeRef();
  EditStep step(session, QStringLiteral("Move"));
  for (const Moved& each : moved) step.require(moveOne(session, each));
  if (insertInto) step.require(insertNode(session, joint, *first));
}

void rename(EditSession& session, NodeObject& node, const QString& name) {
  session.hook().renameNode(EditSession::handle(node), name);
}

void removeSelection(EditSession& session, bool heal) {
  const auto nodes = selectedNodeList(session.scene());
  const auto annotations = selectedAnnotationList(session.scene());
  const std::vector<Joint> joints = heal ? jointsAround(session.scene()) : std::vector<Joint>();
  EditStep step(session, heal ? QStringLiteral("Remove and heal") : QStringLiteral("Remove"));
  for (const auto& node : *nodes) {
    session.hook().removeNode(node);
    step.require(!EditSession::object(node)->parent());
  }
  for (const auto& annotation : *annotations) {
    session.hook().editAnnotation(CommandHook::kRemoveAnnotation, session.levelHandle(),
                                  annotation->getName(), nullptr, nullptr);
    step.require(!static_cast<orvlib::AnnotationObject*>(annotation.get())->parent());
  }
  for (const Joint& joint : joints) {
    step.require(connect(session, *joint.source, *joint.target));
  }
}

void toggleState(EditSession& session, char flag) {
  const auto nodes = selectedNodeList(session.scene());
  const auto state = flag == 'e'   ? orvlib::NodeState::Enabled
                     : flag == 'f' ? orvlib::NodeState::Frozen
                                   : orvlib::NodeState::Bypassed;
  const bool on = !EditSession::object((*nodes)[0u])->is(state);
  EditStep step(session, QStringLiteral("Set state"));
  for (const auto& node : *nodes) step.require(session.hook().setStateFlag(node, flag, on));
}

}  // namespace orvuilib::edits
