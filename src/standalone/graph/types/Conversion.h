#pragma once

#include "standalone/graph/types/ValueType.h"

namespace orvlib {

/// Whether a connection may lead from a port of type `from` to one of type `to`. Asks neither names
/// nor values, so it is cheap. The rules, which docs/graph-library.md states for users:
/// - components of the kinds boolean, integer and float convert to one another, text to text alone;
/// - types of equal component counts convert component by component;
/// - a single number fills a vector or color of two to four components, with an alpha of 1;
/// - a color gains an alpha of 1, or loses its alpha;
/// - an array converts element by element, and any other value makes an array of one element.
ORV_EXPORT bool canConvert(const ValueType& from, const ValueType& to);

/// Whether values of `from` serve as values of `to` as they are, so that `convert` would copy.
ORV_EXPORT bool hasSameLayout(const ValueType& from, const ValueType& to);

/// `value`, which must be one of `from`, as one of `to`. The default of `to` when the types do not
/// convert.
ORV_EXPORT Value convert(const Value& value, const ValueType& from, const ValueType& to);

}  // namespace orvlib
