#pragma once

#include "standalone/graph/library/Fields.h"
#include "standalone/graph/types/ValueType.h"

namespace orvlib {

/// The value of the key "default", or `fallback` when there is none. Throws `DefinitionError` when
/// the value does not fit the type.
Value readDefault(const Fields& fields, const ValueType& type, const Value& fallback);

}  // namespace orvlib
