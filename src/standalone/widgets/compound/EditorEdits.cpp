// What keys of the compound editor do that edit the graph.

#include <QApplication>
#include <QClipboard>

#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/compound/edits/Layout.h"
#include "standalone/widgets/compound/edits/PortEdits.h"
#include "standalone/widgets/compound/edits/ScriptText.h"
#include "standalone/widgets/compound/edits/WireEdits.h"

namespace orvuilib {

using orvlib::NodeObject;

namespace {

bool isForSelection(Action action) {
  using enum Action;
  switch (action) {
    case Remove:
    case RemoveAndHeal:
    case Cut:
    case Copy:
    case Duplicate:
    case Group:
    case Explode:
    case ToggleEnabled:
    case ToggleFrozen:
    case ToggleBypassed:
    case NudgeLeft:
    case NudgeRight:
    case NudgeUp:
    case NudgeDown:
    case AlignLeft:
    case AlignRight:
    case AlignTop:
    case AlignBottom:
    case NarrowNotes:
    case WidenNotes:
    case LowerNotes:
    case HeightenNotes:
    case Disconnect:
      return true;
    default:
      return false;
  }
}

}  // namespace

void CompoundEditorWidget::performEdit(Action action) {
  orvUI_v1::AppServicesHook* services = session_.services();
  switch (action) {
    case Action::CopyAsScript: {
      const QString script = selectionAsScript(scene_);
      if (!script.isEmpty()) QApplication::clipboard()->setText(script);
      return;
    }
    case Action::Undo:
      if (services) services->undo();
      return;
    case Action::Redo:
      if (services) services->redo();
      return;
    case Action::Parameters:
      if (services) services->showParameterEditor(0);
      return;
    default:
      break;
  }
  // A copy changes nothing, and may be made of what is locked.
  const bool allowed = action == Action::Copy ? session_.hasHook() : bench_->canEdit();
  if (!allowed) return;
  switch (action) {
    case Action::AddNode:
      return addByKey();
    case Action::Rename:
      if (scene_.selectedBoxes().size() == 1) return renameNode(*scene_.selectedBoxes()[0]);
      if (scene_.selectedNotes().size() == 1) return changeText(*scene_.selectedNotes()[0]);
      return;
    case Action::Paste:
      return pasteAt(interaction_->pointer());
    case Action::AddNote:
      return performAt(action, interaction_->pointer());
    case Action::AddBackdrop:
      return addBackdrop();
    case Action::AutoLayout:
      return autoLayout();
    case Action::ToggleWatch:
      return toggleWatch(interaction_->hitAtPointer());
    default:
      break;
  }
  if (!isForSelection(action)) return;
  if (scene_.selectedBoxes().empty() && scene_.selectedNotes().empty()) {
    if (action == Action::Remove || action == Action::Disconnect) removeCurrentWire();
    return;
  }
  performOnSelection(action);
}

void CompoundEditorWidget::performOnSelection(Action action) {
  const std::vector<BoxItem*> boxes = scene_.selectedBoxes();
  const qreal step = preferences_.snapToGrid ? preferences_.gridStep : 10;
  switch (action) {
    case Action::Remove:
      return edits::removeSelection(session_, false);
    case Action::RemoveAndHeal:
      return edits::removeSelection(session_, true);
    case Action::Cut:
      return edits::cutSelection(session_);
    case Action::Copy:
      return edits::copySelection(session_);
    case Action::Duplicate:
      return select(edits::duplicateSelection(session_));
    case Action::Group: {
      const NodeObject* made = edits::group(session_);
      if (made) select({orvlib::NodeRef(const_cast<NodeObject*>(made))});
      return;
    }
    case Action::Explode:
      return select(edits::explode(session_));
    case Action::Disconnect:
      return disconnectSelection();
    case Action::NudgeLeft:
      return nudge({-step, 0});
    case Action::NudgeRight:
      return nudge({step, 0});
    case Action::NudgeUp:
      return nudge({0, -step});
    case Action::NudgeDown:
      return nudge({0, step});
    case Action::NarrowNotes:
      return growNotes({-step, 0});
    case Action::WidenNotes:
      return growNotes({step, 0});
    case Action::LowerNotes:
      return growNotes({0, -step});
    case Action::HeightenNotes:
      return growNotes({0, step});
    case Action::AlignLeft:
      return arrange(edits::aligned(boxes, Edge::Left));
    case Action::AlignRight:
      return arrange(edits::aligned(boxes, Edge::Right));
    case Action::AlignTop:
      return arrange(edits::aligned(boxes, Edge::Top));
    case Action::AlignBottom:
      return arrange(edits::aligned(boxes, Edge::Bottom));
    default:
      break;
  }
  if (boxes.empty()) return;
  edits::toggleState(session_, action == Action::ToggleEnabled  ? 'e'
                               : action == Action::ToggleFrozen ? 'f'
                                                                : 'b');
}

void CompoundEditorWidget::nudge(const QPointF& by) {
  std::vector<edits::Moved> moved;
  for (BoxItem* box : scene_.selectedBoxes()) {
    moved.push_back({box, nullptr, box->bounds.topLeft() + by});
  }
  for (NoteItem* note : scene_.selectedNotes()) {
    moved.push_back({nullptr, note, note->bounds.topLeft() + by});
  }
  arrange(moved);
}

void CompoundEditorWidget::growNotes(const QSizeF& by) {
  std::vector<std::pair<NoteItem*, QRectF>> grown;
  for (NoteItem* note : scene_.selectedNotes()) {
    const QSizeF size = (note->bounds.size() + by).expandedTo(kSmallestNote);
    if (size != note->bounds.size()) grown.emplace_back(note, QRectF(note->bounds.topLeft(), size));
  }
  if (grown.empty()) return;
  const EditStep step(session_, QStringLiteral("Resize"));
  for (const auto& [note, bounds] : grown) edits::setBounds(session_, *note, bounds);
}

void CompoundEditorWidget::arrange(const std::vector<edits::Moved>& moved) {
  if (!moved.empty()) edits::move(session_, moved);
}

void CompoundEditorWidget::autoLayout() {
  std::vector<BoxItem*> boxes = scene_.selectedBoxes();
  if (boxes.size() < 2) {
    boxes.clear();
    for (NodeObject* node : scene_.level()->nodes().items()) boxes.push_back(scene_.find(node));
  }
  arrange(edits::laidOut(scene_, boxes));
}

void CompoundEditorWidget::addBackdrop() {
  QRectF area;
  for (const BoxItem* box : scene_.selectedBoxes()) area |= box->bounds;
  if (area.isNull()) area = QRectF(interaction_->pointer(), QSizeF(200, 110));
  addNote([this, area] { edits::addBackdrop(session_, edits::backdropAround(area)); });
}

void CompoundEditorWidget::pasteAt(const QPointF& place) { select(edits::paste(session_, place)); }

/// Of the selected nodes their first outputs, unless a port or a wire is current or pointed at.
void CompoundEditorWidget::toggleWatch(const Hit& hit) {
  const auto toggle = [this](orvlib::PortObject& port) { edits::toggleWatchPoint(session_, port); };
  const PortCursor& cursor = interaction_->cursor();
  if (cursor.port()) return toggle(*cursor.port());
  if (const Wire* wire = cursor.wire()) return toggle(*wire->source);
  if (hit.slot) return toggle(*hit.port());
  if (hit.wire) return toggle(*hit.wire->source);
  const auto nodes = edits::selectedNodeList(scene_);
  std::vector<orvlib::PortRef> ports;
  for (const auto& node : *nodes) {
    if (auto* output = EditSession::object(node)->outputList().at(0)) ports.emplace_back(output);
  }
  if (ports.empty()) return;
  EditStep step(session_, QStringLiteral("Watch"));
  for (const auto& port : ports) step.require(edits::toggleWatchPoint(session_, *port));
}

void CompoundEditorWidget::disconnectSelection() {
  std::vector<edits::Joint> joints;
  for (const BoxItem* box : scene_.selectedBoxes()) {
    for (const Wire* wire : box->arriving) joints.push_back({wire->source, wire->target});
    for (const Wire* wire : box->leaving) {
      // The others are there by their far ends.
      if (!wire->to->selected) joints.push_back({wire->source, wire->target});
    }
  }
  if (!joints.empty()) edits::removeWires(session_, joints);
}

/// The one that the keys are about, or else the one that is pointed at.
void CompoundEditorWidget::removeCurrentWire() {
  const Wire* wire = interaction_->cursor().wire();
  if (!wire) wire = interaction_->hitAtPointer().wire;
  if (wire) edits::removeWires(session_, {{wire->source, wire->target}});
}

}  // namespace orvuilib
