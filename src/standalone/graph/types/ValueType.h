#pragma once

#include <memory>
#include <string>
#include <vector>

#include "standalone/graph/types/Value.h"

namespace orvlib {

/// The type of a port's values.
struct ValueType {
  std::string name;
  std::string niceName;
  std::string description;

  /// The kind of each component; that of its element's components for an array.
  ScalarKind scalar = ScalarKind::Float;

  /// The names of the members of a vector, matrix or colour; empty for a scalar and for an array.
  std::vector<std::string> components;

  /// The type of an array's elements; null for any other type.
  std::shared_ptr<const ValueType> element;

  Value defaultValue;

  bool isArray() const { return element != nullptr; }

  /// Components of one value, or of one element of an array: at least 1.
  std::size_t componentCount() const {
    if (element) return element->componentCount();
    return components.empty() ? 1 : components.size();
  }
};

}  // namespace orvlib
