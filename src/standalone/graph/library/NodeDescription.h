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
};

}  // namespace orvlib
