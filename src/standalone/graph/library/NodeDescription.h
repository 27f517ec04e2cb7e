#pragma once

#include "standalone/graph/types/TypeTable.h"

namespace orvlib {

enum class PortDirection { Input, Output };

/// One port of a kind of node.
struct PortDescription {
  std::string name;
  PortDirection direction = PortDirection::Input;
  TypeHandle type;

  /// The value of an input that is not connected and was not set; the type's default for an output.
  Value defaultValue;

  /// An input, of an array type, that takes any number of connections.
  bool fanIn = false;

  std::string description;
};

/// A kind of node, as its definition file states it.
struct NodeDescription {
  /// The qualified type name, "core::math::add".
  std::string name;
  std::string niceName;
  std::string description;

  /// Inputs first, then outputs, each in the order of the file. Names are unique over both.
  std::vector<PortDescription> ports;

  /// For a published compound, its content as `writeContent` wrote it; empty for a node that
  /// computes.
  std::string content;
};

}  // namespace orvlib
