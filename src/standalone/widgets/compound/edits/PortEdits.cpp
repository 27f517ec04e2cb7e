#include "standalone/widgets/compound/edits/PortEdits.h"

#include <algorithm>

#include "platform/ORV_1_0/NewPortHints.h"
#include "standalone/widgets/compound/edits/WireEdits.h"

namespace orvuilib::edits {

using orvlib::CompoundObject;
using orvlib::PortListObject;
using orvlib::PortObject;
using orvUI_v1::CommandHook;

namespace {

PortObject* makePort(EditSession& session, CompoundObject& compound, bool output,
                     const std::string& name, const std::string& type) {
  ORV_v1::NewPortHints hints;
  hints.setNameHint(name.c_str());
  hints.setTypeHint(type.c_str());
  CommandHook::PortHandle made;
  const CommandHook::CompoundHandle handle(&compound);
  session.hook().createCompoundPort(handle, output, hints, made);
  return EditSession::object(made);
}

/// For a fan-in port, the type of its members.
const std::string& typeFor(const PortObject& port) {
  const auto& type = port.valueType();
  return port.isFanInPort() && type.element ? type.element->name : type.name;
}

/// The outer face lies in this list, and a port of a plain node does.
PortListObject& listOf(PortObject& port) {
  PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
  return outer.node()->list(outer.direction());
}

}  // namespace

CompoundObject* compoundOfPort(const PortObject& port) {
  return port.above() || !port.node() ? nullptr : port.node()->compound();
}

void createLevelPort(EditSession& session, bool output, PortObject* like) {
  CompoundObject& level = session.level();
  if (!like) {
    makePort(session, level, output, output ? "output" : "input", "float");
    return;
  }
  EditStep step(session, QStringLiteral("Add port"));
  PortObject* made = makePort(session, level, output, like->name(), typeFor(*like));
  if (!step.require(made)) return;
  const auto joint = jointOf(*like, *made);
  if (joint) step.require(connect(session, *joint->source, *joint->target));
}

void createPort(EditSession& session, CompoundObject& compound, bool output, const QString& name,
                const QString& type) {
  makePort(session, compound, output, name.toStdString(), type.toStdString());
}

void renamePort(EditSession& session, PortObject& port, const QString& name) {
  session.hook().renamePort(EditSession::handle(port), name);
}

void deletePort(EditSession& session, PortObject& port) {
  session.hook().deletePort(EditSession::handle(port));
}

void setPortHidden(EditSession& session, PortObject& port, bool hidden) {
  const auto handle = EditSession::handle(port);
  if (compoundOfPort(port)) return session.hook().hidePort(handle, hidden);
  if (hidden) {
    session.hook().setPortFlag(handle, ORV_v1::kPortHidden);
  } else {
    session.hook().clearPortFlag(handle, ORV_v1::kPortHidden);
  }
}

namespace {

/// A top-level port with the rows of what is shown below it.
struct Block {
  PortObject* port;
  qreal top;
  qreal bottom;
};

/// Those that stand in one column with the port, from above; empty for a port without a row.
std::vector<Block> columnOf(const BoxItem& box, const PortObject& port) {
  const PortSlot* own = slotFor(box, port);
  std::vector<Block> column;
  if (!own || own->row < 0) return column;
  for (const PortSlot& slot : box.portSlots) {
    if (slot.left != own->left || slot.row < 0) continue;
    const QRectF row = rowOf(box, slot);
    if (slot.depth == 0) {
      column.push_back({slot.port.get(), row.top(), row.bottom()});
    } else {
      column.back().bottom = row.bottom();
    }
  }
  return column;
}

int indexIn(const std::vector<Block>& column, const PortObject& port) {
  const auto found = std::ranges::find(column, &port.root(), &Block::port);
  return static_cast<int>(found - column.begin());
}

/// The ports of an input or output node stand there in the order in which they came.
void showInOrder(EditSession& session, orvlib::NodeObject& ioNode,
                 const std::vector<PortObject*>& ports) {
  EditStep step(session, QStringLiteral("Move port"));
  const QString name = QString::fromStdString(ioNode.name());
  for (PortObject* port : ports) {
    session.hook().movePortToIONode(EditSession::handle(*port), name);
    const PortListObject& list = port->isInput() ? ioNode.inputList() : ioNode.outputList();
    step.require(list.at(list.count() - 1) == port);
  }
}

/// From the first that changes its place on.
void moveOnIoNode(EditSession& session, orvlib::NodeObject& ioNode,
                  const std::vector<Block>& column, int from, int to) {
  std::vector<PortObject*> ports;
  for (const Block& block : column) ports.push_back(block.port);
  const auto moved = ports.begin() + from;
  if (from < to) std::rotate(moved, moved + 1, ports.begin() + to + 1);
  if (from > to) std::rotate(ports.begin() + to, moved, moved + 1);
  ports.erase(ports.begin(), ports.begin() + std::min(from, to));
  showInOrder(session, ioNode, ports);
}

}  // namespace

bool movePort(EditSession& session, PortObject& port, int places) {
  const BoxItem* box = session.scene().find(port).box;
  if (!box || !compoundOfPort(port)) return false;
  const std::vector<Block> column = columnOf(*box, port);
  const int last = static_cast<int>(column.size()) - 1;
  const int from = indexIn(column, port);
  const int to = std::clamp(from + places, 0, std::max(last, 0));
  if (from > last || to == from) return false;
  const auto kind = box->node->nodeKind();
  const bool onBox = box->kind == BoxKind::Node;
  if (onBox && (kind == orvlib::NodeKind::Input || kind == orvlib::NodeKind::Output)) {
    moveOnIoNode(session, *box->node, column, from, to);
    return true;
  }
  PortObject* other = column[static_cast<std::size_t>(to)].port;
  PortObject* outer = other->isInner() ? other->twin() : other;
  session.hook().movePort(EditSession::handle(port), listOf(port).indexOf(outer));
  return true;
}

PortDrop portDropAt(const BoxItem& box, const PortObject& port, qreal y) {
  const std::vector<Block> column = columnOf(box, port);
  const int from = indexIn(column, port);
  if (from == static_cast<int>(column.size())) return {};
  int to = 0;
  for (const Block& block : column) {
    if (block.port != &port.root() && (block.top + block.bottom) / 2 < y) ++to;
  }
  const Block& target = column[static_cast<std::size_t>(to)];
  return {to - from, to > from ? target.bottom : target.top};
}

void setPortType(EditSession& session, PortObject& port, const QString& type) {
  const int kind = compoundOfPort(port) ? CommandHook::kTargetCompound : CommandHook::kTargetNode;
  session.hook().setPortDataType(kind, EditSession::handle(port), type);
}

void disconnectPort(EditSession& session, PortObject& port) {
  std::vector<Joint> joints;
  for (PortObject* peer : port.peers().items()) {
    if (auto joint = jointOf(port, *peer)) joints.push_back(*std::move(joint));
  }
  if (!joints.empty()) removeWires(session, joints);
}

PortObject& watchedFace(PortObject& port) {
  PortObject* twin = port.twin();
  if (!twin || port.above()) return port;
  PortObject& outer = port.isInner() ? *twin : port;
  return outer.isInput() ? outer : *outer.twin();
}

bool toggleWatchPoint(EditSession& session, PortObject& port) {
  PortObject& face = watchedFace(port);
  const auto operation =
      face.watchPoint() ? CommandHook::kRemoveWatchPoint : CommandHook::kCreateWatchPoint;
  return session.hook().editWatchPoint(operation, EditSession::handle(face), {}, {});
}

}  // namespace orvuilib::edits
