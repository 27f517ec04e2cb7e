#pragma once

#include <cstddef>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/types/ValueType.h"

namespace orvlib {

/// Components `first` to `first + count` of a value, which has them.
ORV_EXPORT Value componentsOf(const Value& value, std::size_t first, std::size_t count);

/// Replaces the components from `first` on by those of `part`, which are of the same kind and fit.
ORV_EXPORT void setComponents(Value& value, std::size_t first, const Value& part);

/// Adds the components of `part`, which are of the same kind, after those of `value`.
ORV_EXPORT void appendComponents(Value& value, const Value& part);

ORV_EXPORT std::size_t componentCount(const Value& value);

/// Whether the value has the kind and the number of components that values of the type have.
ORV_EXPORT bool isOfType(const Value& value, const ValueType& type);

}  // namespace orvlib
