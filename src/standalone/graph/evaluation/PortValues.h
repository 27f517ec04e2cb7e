#pragma once

#include <deque>

#include "standalone/graph/model/PortObject.h"

namespace orvlib {

/// Reads what ports give and what arrives at them. All that flows into the port asked for has been
/// evaluated already.
class PortValues {
 public:
  /// What an output gives or what arrives at an input. It is valid until `release` with a mark from
  /// before, and until a node is evaluated or the graph changes.
  const Value& of(PortObject& port);

  /// The same as a value of `type`.
  const Value& of(PortObject& port, const ValueType& type);

  // The values that are put together under way lie on a stack.
  std::size_t mark() const { return used_; }
  void release(std::size_t mark) { used_ = mark; }

 private:
  const Value& given(const PortObject& output);
  const Value& arriving(PortObject& input);
  const Value& component(PortObject& port);
  const Value& gatheredFrom(const PortListObject& members, const ValueType& type);
  const Value& withComponents(const PortObject& input, const PortListObject& components);
  Value& next();

  std::deque<Value> made_;
  std::size_t used_ = 0;
};

}  // namespace orvlib
