#pragma once

#include <QString>
#include <span>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

namespace orvuilib {

/// Whether values of the type have the components r, g, b, and perhaps a.
bool isColour(const orvlib::ValueType& type);

/// What a value is edited with.
enum class RowKind { Boolean, Number, Components, Matrix, Colour, Text, Paragraph, Choice, Array };

/// By the port's type, and by the choices and the lines of text that the port's metadata ask for.
ORVUI_EXPORT RowKind rowKindOf(const orvlib::PortObject& port);

/// How many lines of text the port's metadata ask for, 1 to 20: the key "lines".
ORVUI_EXPORT int textLines(const orvlib::PortObject& port);

/// One line of the parameter editor: a port of that name and type, of each node that has one.
struct ParameterRow {
  /// The row is known by this when the rows are made anew.
  QString key;
  QString label;
  RowKind kind = RowKind::Number;

  /// Never empty; of one type.
  std::vector<orvlib::PortRef> ports;

  /// Whether all of them get their value from elsewhere.
  bool connected = false;

  orvlib::PortObject& first() const { return *ports.front(); }
  const orvlib::ValueType& type() const { return first().valueType(); }
};

/// Rows under one heading.
struct RowGroup {
  QString key;
  QString title;
  std::vector<ParameterRow> rows;
};

/// The rows for these nodes: a group for each type of node, in the order of the first of each. With
/// several types, what all nodes have comes first, in a group of its own. Hidden ports, and ports
/// that have no value to set, have no row.
ORVUI_EXPORT std::vector<RowGroup> makeRows(std::span<const orvlib::NodeRef> nodes);

/// A number that is another one when other ports of these nodes have rows.
std::size_t rowFingerprint(std::span<const orvlib::NodeRef> nodes);

/// The name of a node's type to show to a user, such as "Add".
ORVUI_EXPORT QString niceTypeName(const orvlib::NodeObject& node);

inline QString toText(const std::string& text) { return QString::fromStdString(text); }

}  // namespace orvuilib
