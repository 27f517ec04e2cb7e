#include "standalone/widgets/parameters/SoftRange.h"

#include <algorithm>
#include <cmath>

#include "standalone/graph/types/ValueText.h"
#include "standalone/widgets/parameters/NumberFormat.h"

namespace orvuilib {
namespace {

std::optional<double> firstNumber(const orvlib::PortObject& port, const char* key,
                                  const char* otherKey) {
  const auto number = metadataNumber(port, key);
  return number ? number : metadataNumber(port, otherKey);
}

/// The smallest of 1, 10, 100 and so on that is not less; integers begin with 10.
double roundBound(double size, bool isInteger) {
  double bound = isInteger ? 10 : 1;
  while (bound < size && bound < 1e30) bound *= 10;
  return bound;
}

NumberRange rangeAround(double number, double other, bool isInteger) {
  if (!std::isfinite(number)) number = 0;
  if (!std::isfinite(other)) other = 0;
  const double bound = roundBound(std::max(std::abs(number), std::abs(other)), isInteger);
  return {std::min(number, other) < 0 ? -bound : 0, bound};
}

double defaultNumber(const orvlib::PortObject& port) {
  return std::stod(orvlib::printValue(port.defaultValue()).front());
}

}  // namespace

NumberRange softRange(const ParameterRow& row, double number) {
  if (const auto own = ParameterPreferences::sliderRange(row.key)) return *own;
  const orvlib::PortObject& port = row.first();
  const bool isInteger = port.valueType().scalar == orvlib::ScalarKind::Integer;
  NumberRange range = rangeAround(number, defaultNumber(port), isInteger);
  const auto least = firstNumber(port, "softMin", "min");
  const auto most = firstNumber(port, "softMax", "max");
  if (least) range.first = *least;
  if (most) range.second = *most;
  if (range.first < range.second) return range;
  return {range.first, range.first + (isInteger ? 10 : 1)};
}

}  // namespace orvuilib
