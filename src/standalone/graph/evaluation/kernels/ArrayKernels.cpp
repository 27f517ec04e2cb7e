#include <algorithm>
#include <limits>

#include "standalone/graph/evaluation/kernels/Arithmetic.h"
#include "standalone/graph/evaluation/kernels/Counting.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

template <class Scalar>
using View = std::span<const Scalar>;
template <class Scalar>
using List = ScalarsOf<Scalar>;

template <class Scalar>
List<Scalar> toList(View<Scalar> array) {
  return {array.begin(), array.end()};
}

template <class Scalar>
std::int32_t length(View<Scalar> array) {
  return toCount(array.size());
}

/// Also true for an index below zero, which is a very large one without its sign.
bool isOutside(std::int32_t index, std::size_t size) {
  return static_cast<std::uint32_t>(index) >= size;
}

template <class Scalar>
Scalar element(View<Scalar> array, std::int32_t index, const Scalar& fallback) {
  return isOutside(index, array.size()) ? fallback : array[index];
}

template <class Scalar>
List<Scalar> append(View<Scalar> array, const Scalar& last) {
  List<Scalar> result;
  result.reserve(array.size() + 1);
  result.insert(result.end(), array.begin(), array.end());
  result.push_back(last);
  return result;
}

template <class Scalar>
List<Scalar> concatenate(View<Scalar> a, View<Scalar> b) {
  List<Scalar> result;
  result.reserve(a.size() + b.size());
  result.insert(result.end(), a.begin(), a.end());
  result.insert(result.end(), b.begin(), b.end());
  return result;
}

template <class Scalar>
List<Scalar> slice(View<Scalar> array, std::int32_t start, std::int32_t count) {
  const Range range = rangeWithin(array.size(), start, count);
  return toList(array.subspan(range.first, range.count));
}

template <class Scalar>
List<Scalar> reverse(View<Scalar> array) {
  return {array.rbegin(), array.rend()};
}

bool isBefore(float a, float b) { return a < b || (std::isnan(b) && !std::isnan(a)); }
bool isBefore(const std::string& a, const std::string& b) { return a < b; }

template <class Scalar>
List<Scalar> sort(View<Scalar> array) {
  List<Scalar> result = toList(array);
  std::stable_sort(result.begin(), result.end(),
                   [](const Scalar& a, const Scalar& b) { return isBefore(a, b); });
  return result;
}

std::int32_t lengthVector3(Vector3View array) { return toCount(array.components.size() / 3); }

Vector3 elementVector3(Vector3View array, std::int32_t index, const Vector3& fallback) {
  if (isOutside(index, array.components.size() / 3)) return fallback;
  const float* first = &array.components[static_cast<std::size_t>(index) * 3];
  return {first[0], first[1], first[2]};
}

Vector3List appendVector3(Vector3View array, const Vector3& last) {
  return {concatenate<float>(array.components, last)};
}

Vector3List concatenateVector3(Vector3View a, Vector3View b) {
  return {concatenate(a.components, b.components)};
}

double sumOf(View<float> array) {
  double sum = 0;
  for (const float number : array) sum += number;
  return sum;
}

float average(View<float> array) {
  return array.empty() ? 0 : static_cast<float>(sumOf(array) / static_cast<double>(array.size()));
}

/// The one that `choose` prefers among the numbers of the array.
float chosenOf(View<float> array, float (*choose)(float, float)) {
  float chosen = std::numeric_limits<float>::quiet_NaN();
  for (const float number : array) chosen = choose(chosen, number);
  return std::isnan(chosen) ? 0 : chosen;
}

Floats range(float start, float step, std::int32_t count) {
  Floats result(usableCount(count));
  for (std::size_t i = 0; i < result.size(); ++i) result[i] = start + step * static_cast<float>(i);
  return result;
}

constexpr KernelEntry kKernels[] = {
    entry<toList<float>>("core::array::build"),
    entry<length<float>>("core::array::length"),
    entry<element<float>>("core::array::element"),
    entry<append<float>>("core::array::append"),
    entry<concatenate<float>>("core::array::concatenate"),
    entry<slice<float>>("core::array::slice"),
    entry<reverse<float>>("core::array::reverse"),
    entry<sort<float>>("core::array::sort"),

    entry<toList<std::int32_t>>("core::array::build_int"),
    entry<length<std::int32_t>>("core::array::length_int"),
    entry<element<std::int32_t>>("core::array::element_int"),
    entry<append<std::int32_t>>("core::array::append_int"),
    entry<concatenate<std::int32_t>>("core::array::concatenate_int"),

    entry<toList<std::string>>("core::array::build_string"),
    entry<length<std::string>>("core::array::length_string"),
    entry<element<std::string>>("core::array::element_string"),
    entry<append<std::string>>("core::array::append_string"),
    entry<concatenate<std::string>>("core::array::concatenate_string"),
    entry<slice<std::string>>("core::array::slice_string"),
    entry<reverse<std::string>>("core::array::reverse_string"),
    entry<sort<std::string>>("core::array::sort_string"),

    entry("core::array::build_vector3",
          [](Vector3View elements) { return Vector3List{toList(elements.components)}; }),
    entry<lengthVector3>("core::array::length_vector3"),
    entry<elementVector3>("core::array::element_vector3"),
    entry<appendVector3>("core::array::append_vector3"),
    entry<concatenateVector3>("core::array::concatenate_vector3"),

    entry("core::array::sum", [](View<float> array) { return static_cast<float>(sumOf(array)); }),
    entry<average>("core::array::average"),
    entry("core::array::minimum", [](View<float> array) { return chosenOf(array, minimum); }),
    entry("core::array::maximum", [](View<float> array) { return chosenOf(array, maximum); }),
    entry<range>("core::array::range"),
    entry("core::array::fill",
          [](float value, std::int32_t count) { return Floats(usableCount(count), value); }),
};

}  // namespace

KernelTable arrayKernels() { return kKernels; }

}  // namespace orvlib
