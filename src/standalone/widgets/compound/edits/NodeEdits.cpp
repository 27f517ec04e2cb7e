#include "standalone/widgets/compound/edits/NodeEdits.h"

#include "platform/ORV_1_0/AnnotationList.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvlib::NodeObject;
using orvUI_v1::CommandHook;

namespace {

orvUI_v1::EditSelection selectionOf(const EditSession& session, const ORV_v1::NodeList& nodes,
                                    const ORV_v1::AnnotationList& annotations) {
  return {session.levelHandle(), &nodes, &annotations};
}

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
  session.hook().createCompound("compound", selectionOf(session, *nodes, *annotations), made);
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

/// What gives to the port ends at the place, what takes from it begins there.
QPointF cornerOf(const EditSession& session, NodeObject& node, const NodePlace& place) {
  if (!place.connectTo || !place.connectTo->isInput()) return place.position;
  BoxItem box;
  box.node = orvlib::NodeRef(&node);
  layOut(box, {}, session.scene().theme());
  return place.position - QPointF(box.bounds.width(), 0);
}

QRectF selectedBounds(const LevelScene& scene) {
  QRectF bounds;
  for (const BoxItem* box : scene.selectedBoxes()) bounds |= box->bounds;
  for (const NoteItem* note : scene.selectedNotes()) bounds |= note->bounds;
  return bounds;
}

}  // namespace

void setPosition(EditSession& session, NodeObject& node, const QPointF& position) {
  session.hook().setMetaData(CommandHook::kTargetNode, EditSession::handle(node),
                             QLatin1String(placement::kPosition), placement::toText(position));
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
  const EditStep step(session, QStringLiteral("Add node"));
  NodeObject* node = makeNode(session, what);
  if (!node) return nullptr;
  setPosition(session, *node, cornerOf(session, *node, place));
  if (place.connectTo) connectToFirstFitting(session, *place.connectTo, *node);
  return node;
}

void move(EditSession& session, const std::vector<Moved>& moved, const Wire* insertInto) {
  // A program may tell of each edit at once, and make the wire anew.
  const Wire wire = insertInto ? *insertInto : Wire();
  const orvlib::NodeRef first = moved.front().box ? moved.front().box->node : orvlib::NodeRef();
  const EditStep step(session, QStringLiteral("Move"));
  CommandHook& hook = session.hook();
  for (const Moved& each : moved) {
    const QString text = placement::toText(each.position);
    if (each.note) {
      hook.editAnnotation(CommandHook::kSetAnnotationMetaDataValue, session.levelHandle(),
                          each.note->annotation->getName(), placement::kPosition,
                          text.toUtf8().constData());
    } else if (each.box->kind == BoxKind::Node) {
      setPosition(session, *each.box->node, each.position);
    } else {
      const bool inputs = each.box->kind == BoxKind::Inputs;
      hook.setMetaData(
          CommandHook::kTargetCompound, EditSession::handle(*each.box->node),
          QLatin1String(inputs ? placement::kInputsPosition : placement::kOutputsPosition), text);
    }
  }
  if (insertInto) insertNode(session, wire, *first);
}

void rename(EditSession& session, NodeObject& node, const QString& name) {
  session.hook().renameNode(EditSession::handle(node), name);
}

void removeSelection(EditSession& session, bool heal) {
  const auto nodes = selectedNodeList(session.scene());
  const auto annotations = selectedAnnotationList(session.scene());
  const std::vector<Joint> joints = heal ? jointsAround(session.scene()) : std::vector<Joint>();
  const EditStep step(session, heal ? QStringLiteral("Remove and heal") : QStringLiteral("Remove"));
  for (const auto& node : *nodes) session.hook().removeNode(node);
  for (const auto& annotation : *annotations) {
    session.hook().editAnnotation(CommandHook::kRemoveAnnotation, session.levelHandle(),
                                  annotation->getName(), nullptr, nullptr);
  }
  for (const Joint& joint : joints) connect(session, *joint.source, *joint.target);
}

void toggleState(EditSession& session, char flag) {
  const auto nodes = selectedNodeList(session.scene());
  const auto state = flag == 'e'   ? orvlib::NodeState::Enabled
                     : flag == 'f' ? orvlib::NodeState::Frozen
                                   : orvlib::NodeState::Bypassed;
  const bool on = !EditSession::object((*nodes)[0u])->is(state);
  const EditStep step(session, QStringLiteral("Set state"));
  for (const auto& node : *nodes) session.hook().setStateFlag(node, flag, on);
}

NodeObject* group(EditSession& session) {
  const auto nodes = selectedNodeList(session.scene());
  const auto annotations = selectedAnnotationList(session.scene());
  const QPointF centre = selectedBounds(session.scene()).center();
  const EditStep step(session, QStringLiteral("Group"));
  CommandHook::CompoundHandle made;
  session.hook().createCompound("group", selectionOf(session, *nodes, *annotations), made);
  if (!made) return nullptr;
  NodeObject* node = EditSession::object(made->getAsNode());
  setPosition(session, *node, centre - QPointF(60, 40));
  return node;
}

void copySelection(EditSession& session) {
  const auto nodes = selectedNodeList(session.scene());
  const auto annotations = selectedAnnotationList(session.scene());
  session.hook().copySelection(selectionOf(session, *nodes, *annotations));
}

void cutSelection(EditSession& session) {
  const auto nodes = selectedNodeList(session.scene());
  const auto annotations = selectedAnnotationList(session.scene());
  const EditStep step(session, QStringLiteral("Cut"));
  session.hook().cutSelection(selectionOf(session, *nodes, *annotations));
}

}  // namespace orvuilib::edits
