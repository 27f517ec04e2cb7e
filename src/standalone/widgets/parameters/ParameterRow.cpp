#include "standalone/widgets/parameters/ParameterRow.h"

#include <QHash>
#include <QSet>
#include <algorithm>

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/widgets/look/Feeding.h"
#include "standalone/widgets/parameters/Choices.h"
#include "standalone/widgets/parameters/NumberFormat.h"

namespace orvuilib {

using orvlib::NodeKind;
using orvlib::NodeObject;
using orvlib::NodeRef;
using orvlib::PortObject;
using orvlib::PortRef;
using orvlib::ScalarKind;
using orvlib::ValueType;

namespace {

/// Whether the components are named m00, m01 and so on, in a square.
bool isMatrix(const ValueType& type) {
  const std::size_t count = type.components.size();
  const std::size_t side = count == 4 ? 2 : count == 9 ? 3 : count == 16 ? 4 : 0;
  return side > 0 && type.components[0] == "m00" && type.components[1] == "m01";
}

RowKind scalarKind(ScalarKind kind) {
  if (kind == ScalarKind::Boolean) return RowKind::Boolean;
  return kind == ScalarKind::String ? RowKind::Text : RowKind::Number;
}

/// Nodes of one type, and the rows that they get.
struct TypeGroup {
  std::vector<NodeRef> nodes;
  RowGroup group;
  QHash<QString, std::size_t> rowOf;
};

template <class Visit>
void visitPorts(NodeObject& node, const Visit& visit) {
  const auto visitList = [&](orvlib::PortListObject& list) {
    for (PortObject* port : list.items()) {
      if (port->isSettable() && (port->flags() & ORV_v1::kPortHidden) == 0) visit(*port);
    }
  };
  visitList(node.inputList());
  visitList(node.outputList());
}

/// What makes ports of two nodes the same: name, direction and type.
QString portKey(const PortObject& port) {
  return toText(port.name()) + (port.isInput() ? "<" : ">") + toText(port.valueType().name);
}

void addPort(TypeGroup& into, PortObject& port) {
  const QString key = portKey(port);
  const auto found = into.rowOf.constFind(key);
  if (found != into.rowOf.cend()) {
    into.group.rows[*found].ports.emplace_back(&port);
    return;
  }
  into.rowOf.insert(key, into.group.rows.size());
  into.group.rows.push_back(
      {into.group.key + "/" + key, toText(port.name()), rowKindOf(port), {PortRef(&port)}, false});
}

QString titleOf(const TypeGroup& group) {
  const NodeObject& first = *group.nodes.front();
  const QString type = niceTypeName(first);
  if (group.nodes.size() > 1)
    return QString("%1  \u00b7  %2 nodes").arg(type).arg(group.nodes.size());
  return QString("%1  \u00b7  %2").arg(toText(first.name()), type);
}

std::vector<TypeGroup> groupByType(std::span<const NodeRef> nodes) {
  std::vector<TypeGroup> groups;
  QHash<QString, std::size_t> groupOf;
  for (const NodeRef& node : nodes) {
    const QString type = toText(node->typeName());
    const auto [at, isNew] = [&] {
      const auto found = groupOf.constFind(type);
      if (found != groupOf.cend()) return std::pair(*found, false);
      groupOf.insert(type, groups.size());
      return std::pair(groups.size(), true);
    }();
    if (isNew) groups.push_back({{}, {type, {}, {}}, {}});
    groups[at].nodes.push_back(node);
  }
  return groups;
}

void fill(TypeGroup& group) {
  for (const NodeRef& node : group.nodes) {
    visitPorts(*node, [&group](PortObject& port) { addPort(group, port); });
  }
  group.group.title = titleOf(group);
}

void noteConnected(RowGroup& group) {
  for (ParameterRow& row : group.rows) {
    row.connected =
        std::ranges::all_of(row.ports, [](const PortRef& port) { return isFed(*port); });
  }
}

/// Takes the rows that every node has out of the groups, into one of their own.
RowGroup takeCommon(std::vector<TypeGroup>& groups, std::size_t nodeCount) {
  RowGroup common{"*", QString("All %1 nodes").arg(nodeCount), {}};
  for (const auto& row : groups.front().group.rows) {
    const QString key = portKey(row.first());
    ParameterRow all{"*/" + key, row.label, row.kind, {}, false};
    for (const TypeGroup& group : groups) {
      const auto found = group.rowOf.constFind(key);
      if (found == group.rowOf.cend()) break;
      const auto& ports = group.group.rows[*found].ports;
      all.ports.insert(all.ports.end(), ports.begin(), ports.end());
    }
    if (all.ports.size() == nodeCount) common.rows.push_back(std::move(all));
  }
  QSet<QString> taken;
  for (const ParameterRow& row : common.rows) taken.insert(portKey(row.first()));
  for (TypeGroup& group : groups) {
    std::erase_if(group.group.rows, [&taken](const ParameterRow& row) {
      return taken.contains(portKey(row.first()));
    });
  }
  return common;
}

}  // namespace

bool isColour(const ValueType& type) {
  const auto& names = type.components;
  if (type.scalar != ScalarKind::Float || names.size() < 3 || names.size() > 4) return false;
  return names[0] == "r" && names[1] == "g" && names[2] == "b" &&
         (names.size() < 4 || names[3] == "a");
}

RowKind rowKindOf(const PortObject& port) {
  const ValueType& type = port.valueType();
  if (type.isArray()) return RowKind::Array;
  if (isColour(type)) return RowKind::Colour;
  if (isMatrix(type)) return RowKind::Matrix;
  if (!type.components.empty()) return RowKind::Components;
  if (!readChoices(port).empty()) return RowKind::Choice;
  const RowKind kind = scalarKind(type.scalar);
  return kind == RowKind::Text && textLines(port) > 1 ? RowKind::Paragraph : kind;
}

int textLines(const PortObject& port) {
  constexpr double kMostLines = 20;
  return static_cast<int>(std::clamp(metadataNumber(port, "lines").value_or(1), 1.0, kMostLines));
}

std::vector<RowGroup> makeRows(std::span<const NodeRef> nodes) {
  std::vector<RowGroup> rows;
  if (nodes.empty()) return rows;
  std::vector<TypeGroup> groups = groupByType(nodes);
  for (TypeGroup& group : groups) fill(group);
  if (groups.size() > 1) {
    RowGroup common = takeCommon(groups, nodes.size());
    if (!common.rows.empty()) rows.push_back(std::move(common));
  }
  for (TypeGroup& group : groups) rows.push_back(std::move(group.group));
  for (RowGroup& group : rows) noteConnected(group);
  return rows;
}

std::size_t rowFingerprint(std::span<const NodeRef> nodes) {
  std::size_t print = 0;
  for (const NodeRef& node : nodes) {
    visitPorts(*node, [&print](PortObject& port) { print = qHash(&port, print); });
  }
  return print;
}

QString niceTypeName(const NodeObject& node) {
  if (node.description() && !node.description()->niceName.empty()) {
    return toText(node.description()->niceName);
  }
  switch (node.nodeKind()) {
    case NodeKind::Compound:
      return "Compound";
    case NodeKind::Input:
      return "Input";
    case NodeKind::Output:
      return "Output";
    default:
      return toText(node.typeName());
  }
}

}  // namespace orvuilib
