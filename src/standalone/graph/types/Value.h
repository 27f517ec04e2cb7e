#pragma once

// An empty vector is moved with its storage, which GCC 12 then takes for a use of what is not set.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <absl/container/inlined_vector.h>
#pragma GCC diagnostic pop

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// What one component of a value is. The order is that of the alternatives of `Value`.
enum class ScalarKind { Boolean, Integer, Float, String };

/// The components of a value, by their kind. What fits in 16 bytes (four numbers, sixteen booleans)
/// lies in the vector itself and needs no heap. Integers have 32 bits, floats are single precision,
/// and texts are UTF-8.
using Booleans = absl::InlinedVector<bool, 16>;
using Integers = absl::InlinedVector<std::int32_t, 4>;
using Floats = absl::InlinedVector<float, 4>;
using Texts = std::vector<std::string>;

/// The components of a value, flat: a vector's members in order, a matrix row by row, an array
/// element after element.
using Value = std::variant<Booleans, Integers, Floats, Texts>;

static_assert(sizeof(Value) <= 40, "a graph holds a value for each of its ports");

inline ScalarKind scalarKindOf(const Value& value) {
  return static_cast<ScalarKind>(value.index());
}

/// Of one kind, and equal in every component: the test for "did it change". Unlike ==, it takes nan
/// for equal to nan, and tells -0 from 0, since what is computed from them differs.
ORV_EXPORT bool sameValue(const Value& a, const Value& b);

}  // namespace orvlib
