#include "standalone/graph/types/Value.h"

#include <algorithm>
#include <cmath>

namespace orvlib {
namespace {

template <class Scalar>
bool sameScalar(const Scalar& a, const Scalar& b) {
  return a == b;
}

bool sameScalar(float a, float b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  return a == b && std::signbit(a) == std::signbit(b);
}

template <class Scalars>
bool sameScalars(const Scalars& a, const Scalars& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& x, const auto& y) { return sameScalar(x, y); });
}

}  // namespace

bool sameValue(const Value& a, const Value& b) {
  if (a.index() != b.index()) return false;
  return std::visit(
      [&b](const auto& scalars) {
        return sameScalars(scalars, *std::get_if<std::decay_t<decltype(scalars)>>(&b));
      },
      a);
}

}  // namespace orvlib
