// What keys of the compound editor do with ports and wires.

#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/compound/edits/PortEdits.h"

namespace orvuilib {

using orvlib::CompoundObject;
using orvlib::PortObject;
using orvlib::PortRef;

bool CompoundEditorWidget::performWalk(Action action) {
  switch (action) {
    case Action::WalkLeft:
      walk(PortCursor::Way::Left);
      return true;
    case Action::WalkRight:
      walk(PortCursor::Way::Right);
      return true;
    case Action::WalkUp:
      walk(PortCursor::Way::Up);
      return true;
    case Action::WalkDown:
      walk(PortCursor::Way::Down);
      return true;
    case Action::ContextMenu:
      openMenuByKey();
      return true;
    default:
      return false;
  }
}

/// What the keys come to is brought into view.
void CompoundEditorWidget::walk(PortCursor::Way way) {
  interaction_->cursor().walk(way, canvas_->centre());
  const auto place = interaction_->cursor().place();
  if (place && !canvas_->visibleArea().contains(*place)) canvas_->centreOn(*place);
}

bool CompoundEditorWidget::performPort(Action action) {
  using enum Action;
  switch (action) {
    case AddInput:
    case AddOutput:
      if (!bench_->canEdit()) return true;
      addPort(compoundForPorts(), action == AddOutput, placeForPorts(action == AddOutput));
      return true;
    case ShowPorts:
      if (bench_->canEdit()) showAllPorts();
      return true;
    case WirePort:
    case DisconnectPort:
    case OpenPort:
    case RenamePort:
    case SetPortType:
    case MovePortUp:
    case MovePortDown:
    case HidePort:
    case DeletePort:
      break;
    default:
      return false;
  }
  if (action != OpenPort && !bench_->canEdit()) return true;
  if (PortObject* port = interaction_->cursor().port()) {
    editPort(action, *port);
  } else {
    canvas_->setNotice(QStringLiteral("No port is current: Shift and the arrow keys go to one"));
  }
  canvas_->update();
  return true;
}

void CompoundEditorWidget::editPort(Action action, PortObject& port) {
  const bool ofCompound = edits::compoundOfPort(port);
  switch (action) {
    case Action::WirePort:
      return wireByKey(port);
    case Action::DisconnectPort:
      return edits::disconnectPort(session_, port);
    case Action::OpenPort:
      return canvas_->repaintArea(scene_.toggleOpen(port));
    case Action::HidePort:
      if (!port.above()) edits::setPortHidden(session_, port, true);
      return;
    default:
      break;
  }
  if (!ofCompound) {
    return canvas_->setNotice(QStringLiteral("Only ports of compounds can be changed so"));
  }
  switch (action) {
    case Action::RenamePort:
      return renamePort(port);
    case Action::SetPortType:
      return choosePortType(port);
    case Action::DeletePort:
      return edits::deletePort(session_, port);
    default:
      edits::movePort(session_, port, action == Action::MovePortUp ? -1 : 1);
  }
}

/// The first time the wire begins, the second time it ends.
void CompoundEditorWidget::wireByKey(PortObject& port) {
  PortCursor& cursor = interaction_->cursor();
  const PortRef begun(cursor.begun());
  if (!begun) return cursor.beginWire();
  if (begun.get() == &port) return cursor.dropWire();
  if (!edits::canJoin(*begun, port)) {
    return canvas_->setNotice(QStringLiteral("These ports cannot be connected"));
  }
  cursor.dropWire();
  edits::makeWire(session_, *edits::jointOf(*begun, port));
}

/// The one compound that is selected, or else the level itself.
CompoundObject& CompoundEditorWidget::compoundForPorts() const {
  const auto& selected = scene_.selectedBoxes();
  CompoundObject* compound = selected.size() == 1 ? selected[0]->node->compound() : nullptr;
  return compound ? *compound : *scene_.level();
}

QPointF CompoundEditorWidget::placeForPorts(bool output) const {
  const auto& selected = scene_.selectedBoxes();
  const bool ofSelected = &compoundForPorts() != scene_.level();
  const BoxItem& box = ofSelected ? *selected[0] : output ? *scene_.outputs() : *scene_.inputs();
  return output == ofSelected ? box.bounds.topRight() : box.bounds.topLeft();
}

void CompoundEditorWidget::addPortAt(const BoxItem& box) {
  const bool output =
      box.kind == BoxKind::Outputs || box.node->nodeKind() == orvlib::NodeKind::Output;
  addPort(*scene_.level(), output, addRowOf(box).bottomLeft());
}

/// Asks for the type. The new port is the current one, so that it can be renamed.
void CompoundEditorWidget::addPort(CompoundObject& compound, bool output, const QPointF& at) {
  const QString what = output ? QStringLiteral("output") : QStringLiteral("input");
  const orvlib::CompoundRef kept(&compound);
  const auto isThere = [this, kept] {
    return kept.get() == scene_.level() || scene_.find(kept->node());
  };
  overlays_.typeList().offer(
      scene_.levelNode()->core(), QStringLiteral("Type of the new %1").arg(what), usualType_,
      [isThere, place = placeAt(at)]() -> std::optional<QPoint> {
        if (!isThere()) return {};
        return place();
      },
      [this, kept, output, what](const QString& type) {
        canvas_->setFocus();
        if (!kept->node() || !bench_->canEdit()) return;
        usualType_ = type;
        const auto& list =
            kept->list(output ? orvlib::PortDirection::Output : orvlib::PortDirection::Input);
        const unsigned int before = list.count();
        edits::createPort(session_, *kept, output, what, type);
        if (list.count() == before) return;
        PortObject* inner = list.at(list.count() - 1);
        interaction_->cursor().set(kept.get() == scene_.level() ? *inner : *inner->twin());
        canvas_->update();
        selectionMayHaveChanged();
      });
}

void CompoundEditorWidget::choosePortType(PortObject& port) {
  const auto shown = scene_.find(port);
  if (!shown.slot) return;
  const PortRef kept(&port);
  const QString usual = QString::fromStdString(port.valueType().name);
  overlays_.typeList().offer(
      scene_.levelNode()->core(), QStringLiteral("Type of %1").arg(labelOf(*shown.slot)), usual,
      [this, kept]() -> std::optional<QPoint> {
        const auto at = scene_.find(*kept);
        if (!at.slot || at.slot->port.get() != kept.get() || !canStillEdit()) return {};
        return canvas_->toWidget(rowOf(*at.box, *at.slot)).bottomLeft().toPoint();
      },
      [this, kept, usual](const QString& type) {
        canvas_->setFocus();
        if (type != usual && kept->node() && bench_->canEdit()) {
          edits::setPortType(session_, *kept, type);
        }
      });
}

/// Of the selected nodes, or else of the level's own boxes.
void CompoundEditorWidget::showAllPorts() {
  std::vector<const BoxItem*> boxes(scene_.selectedBoxes().begin(), scene_.selectedBoxes().end());
  if (boxes.empty()) boxes = {scene_.inputs(), scene_.outputs()};
  std::vector<PortRef> hidden;
  for (const BoxItem* box : boxes) {
    for (const PortSlot& slot : box->portSlots) {
      if (slot.row < 0) hidden.push_back(slot.port);
    }
  }
  showPorts(hidden);
}

void CompoundEditorWidget::showPorts(const std::vector<PortRef>& ports) {
  if (ports.empty()) return;
  const EditStep step(session_, QStringLiteral("Show ports"));
  for (const PortRef& port : ports) edits::setPortHidden(session_, *port, false);
}

}  // namespace orvuilib
