#include "standalone/widgets/compound/scene/BoxLayout.h"

#include <algorithm>
#include <cmath>

#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib {

using orvlib::NodeKind;
using orvlib::NodeObject;
using orvlib::PortKind;
using orvlib::PortListObject;
using orvlib::PortObject;

namespace {

bool isHidden(const PortObject& port) { return (port.flags() & ORV_v1::kPortHidden) != 0; }

bool isAnyConnected(const PortListObject& ports) {
  return std::ranges::any_of(ports.items(), [](const PortObject* port) {
    if (port->hasPeers()) return true;
    const PortListObject* below = port->madeChildren();
    return below && isAnyConnected(*below);
  });
}

/// What is below a port shows when it is asked for, and when wires end there.
const PortListObject* shownChildren(PortObject& port, const OpenPorts& open) {
  const PortListObject* made = port.madeChildren();
  if (made && port.isFanInPort()) return made;
  if (open.contains(&port)) return port.childList();
  return made && isAnyConnected(*made) ? made : nullptr;
}

void addSlots(BoxItem& box, PortObject& port, int depth, int& row, const OpenPorts& open) {
  const bool hidden = isHidden(port);
  box.portSlots.push_back(
      {orvlib::PortRef(&port), hidden ? PortSlot::kNoRow : row, depth, port.isInput()});
  if (watchOf(port)) box.watched = true;
  if (hidden) return;
  ++row;
  if (const PortListObject* children = shownChildren(port, open)) {
    for (PortObject* child : children->items()) addSlots(box, *child, depth + 1, row, open);
  }
}

/// Gives the number of rows.
int addList(BoxItem& box, const PortListObject& ports, const OpenPorts& open) {
  int row = 0;
  for (PortObject* port : ports.items()) addSlots(box, *port, 0, row, open);
  return row;
}

/// The inner faces that no input or output node shows.
int addBoundary(BoxItem& box, const PortListObject& faces, const OpenPorts& open) {
  int row = 0;
  for (PortObject* face : faces.items()) {
    if (!face->ioNode()) addSlots(box, *face, 0, row, open);
  }
  return row + 1;  // and the row where ports are added
}

int addAllSlots(BoxItem& box, const OpenPorts& open) {
  NodeObject& node = *box.node;
  switch (box.kind) {
    case BoxKind::Inputs:
      return addBoundary(box, node.compound()->inputs(), open);
    case BoxKind::Outputs:
      return addBoundary(box, node.compound()->outputs(), open);
    case BoxKind::Node:
      break;
  }
  box.portSlots.reserve(node.inputList().count() + node.outputList().count());
  const int left = addList(box, node.inputList(), open);
  const int right = addList(box, node.outputList(), open);
  const bool ofCompound = node.nodeKind() == NodeKind::Input || node.nodeKind() == NodeKind::Output;
  return std::max(left, right) + (ofCompound ? 1 : 0);
}

qreal widthOf(const BoxItem& box, const Theme& theme) {
  qreal left = 0;
  qreal right = 0;
  for (const PortSlot& slot : box.portSlots) {
    if (slot.row < 0) continue;
    const qreal width = theme.textWidth(slot.port->name()) + box::kIndent * slot.depth;
    (slot.left ? left : right) = std::max(slot.left ? left : right, width);
  }
  const qreal columns = left + right + (left > 0 && right > 0 ? box::kColumnGap : 0);
  const bool boundary = box.kind != BoxKind::Node;
  const qreal titleText =
      theme.titleWidth(boundary ? titleOf(box).toStdString() : box.node->name());
  const qreal title = titleText + 2 * box::kLabelInset + 16;
  const qreal wanted = std::max(columns + 2 * box::kLabelInset, title);
  return std::clamp(std::ceil(wanted / 10) * 10, box::kNarrowest, box::kWidest);
}

}  // namespace

void layOut(BoxItem& box, const OpenPorts& open, const Theme& theme) {
  box.portSlots.clear();
  box.watched = false;
  box.rows = addAllSlots(box, open);
  for (PortSlot& slot : box.portSlots) {
    slot.colour = theme.typeColour(slot.port->valueType().name).rgb();
  }
  box.texts.reset();
  box.bounds.setSize({widthOf(box, theme), box::kTitle + box.rows * box::kRow + box::kFoot});
  box.titleColour = box.kind == BoxKind::Node ? theme.titleColour(box.node->typeName()).rgb()
                                              : theme.palette().boundary.lighter(130).rgb();
}

const char* positionKeyOf(const BoxItem& box) {
  switch (box.kind) {
    case BoxKind::Inputs:
      return placement::kInputsPosition;
    case BoxKind::Outputs:
      return placement::kOutputsPosition;
    case BoxKind::Node:
      break;
  }
  return placement::kPosition;
}

QString titleOf(const BoxItem& box) {
  if (box.kind == BoxKind::Inputs) return QStringLiteral("Inputs");
  if (box.kind == BoxKind::Outputs) return QStringLiteral("Outputs");
  return QString::fromStdString(box.node->name());
}

QString labelOf(const PortSlot& slot) { return QString::fromStdString(slot.port->name()); }

QPointF anchorOf(const BoxItem& box, const PortSlot& slot) {
  const qreal x = slot.left ? box.bounds.left() : box.bounds.right();
  if (slot.row < 0) return {x, box.bounds.top() + box::kTitle / 2};
  return {x, box.bounds.top() + box::kTitle + (slot.row + 0.5) * box::kRow + box::kFoot / 2};
}

QRectF rowOf(const BoxItem& box, const PortSlot& slot) {
  if (slot.row < 0) return {};
  const qreal half = box.bounds.width() / 2;
  const qreal top = box.bounds.top() + box::kTitle + slot.row * box::kRow + box::kFoot / 2;
  return {slot.left ? box.bounds.left() : box.bounds.left() + half, top, half, box::kRow};
}

QRectF addRowOf(const BoxItem& box) {
  if (!compoundOf(box)) return {};
  const qreal top = box.bounds.top() + box::kTitle + (box.rows - 1) * box::kRow + box::kFoot / 2;
  return {box.bounds.left(), top, box.bounds.width(), box::kRow};
}

const PortSlot* slotFor(const BoxItem& box, const PortObject& port) {
  for (const PortObject* at = &port; at; at = at->above()) {
    for (const PortSlot& slot : box.portSlots) {
      if (slot.port.get() == at) return &slot;
    }
  }
  return nullptr;
}

orvlib::WatchPointObject* watchOf(const PortObject& port) {
  if (port.watchPoint()) return port.watchPoint();
  return port.twin() ? port.twin()->watchPoint() : nullptr;
}

orvlib::CompoundObject* compoundOf(const BoxItem& box) {
  if (box.kind != BoxKind::Node) return box.node->compound();
  const NodeKind kind = box.node->nodeKind();
  return kind == NodeKind::Input || kind == NodeKind::Output ? box.node->parent() : nullptr;
}

}  // namespace orvuilib
