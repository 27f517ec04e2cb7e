#pragma once

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/types/NameMap.h"
#include "standalone/graph/types/ValueType.h"

namespace orvlib {

using TypeHandle = std::shared_ptr<const ValueType>;

/// The port types of a runtime, in the order in which it declares them.
class ORV_EXPORT TypeTable {
 public:
  /// False, and nothing added, when the name is taken.
  bool add(TypeHandle type);

  /// Null for an unknown name.
  TypeHandle find(std::string_view name) const;

  const std::vector<TypeHandle>& all() const { return types_; }

 private:
  std::vector<TypeHandle> types_;
  NameMap<TypeHandle> byName_;
};

}  // namespace orvlib
