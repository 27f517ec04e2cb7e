#include "standalone/graph/types/TypeTable.h"

namespace orvlib {

bool TypeTable::add(TypeHandle type) {
  if (!byName_.emplace(type->name, type).second) return false;
  types_.push_back(std::move(type));
  return true;
}

TypeHandle TypeTable::find(std::string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : found->second;
}

}  // namespace orvlib
