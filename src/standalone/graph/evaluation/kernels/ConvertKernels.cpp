#include <charconv>

#include "standalone/graph/evaluation/kernels/KernelTables.h"
#include "standalone/graph/types/ScalarConversion.h"

namespace orvlib {
namespace {

template <class Number>
std::string numberToText(Number number) {
  std::array<char, 64> buffer;
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr};
}

/// A number and whether the text is one.
template <class Number>
std::tuple<Number, bool> textToNumber(const std::string& text) {
  Number number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return {Number{0}, false};
  return {number, true};
}

/// from_chars knows more words than the three that a graph writes: "INF", "infinity", "nan(1)".
bool isWord(std::string_view text) {
  return text.find_first_not_of("0123456789.eE+-") != text.npos;
}

std::tuple<float, bool> stringToFloat(const std::string& text) {
  if (isWord(text) && text != "inf" && text != "-inf" && text != "nan") return {0.0F, false};
  return textToNumber<float>(text);
}

std::tuple<bool, bool> stringToBool(const std::string& text) {
  return {text == "true", text == "true" || text == "false"};
}

Matrix4 matrix3To4(const Matrix3& m) {
  return {m[0], m[1], m[2], 0, m[3], m[4], m[5], 0, m[6], m[7], m[8], 0, 0, 0, 0, 1};
}

Matrix3 matrix4To3(const Matrix4& m) {
  return {m[0], m[1], m[2], m[4], m[5], m[6], m[8], m[9], m[10]};
}

constexpr KernelEntry kKernels[] = {
    entry("core::convert::float_to_int", [](float value) { return toInteger(value); }),
    entry<convertScalar<float, std::int32_t>>("core::convert::int_to_float"),
    entry<convertScalar<std::int32_t, bool>>("core::convert::bool_to_int"),
    entry<convertScalar<bool, std::int32_t>>("core::convert::int_to_bool"),
    entry<convertScalar<float, bool>>("core::convert::bool_to_float"),
    entry<convertScalar<bool, float>>("core::convert::float_to_bool"),
    entry<numberToText<float>>("core::convert::float_to_string"),
    entry<numberToText<std::int32_t>>("core::convert::int_to_string"),
    entry("core::convert::bool_to_string",
          [](bool value) { return std::string(value ? "true" : "false"); }),
    entry<stringToFloat>("core::convert::string_to_float"),
    entry<textToNumber<std::int32_t>>("core::convert::string_to_int"),
    entry<stringToBool>("core::convert::string_to_bool"),
    entry("core::convert::vector3_to_color3", [](Vector3 value) { return value; }),
    entry("core::convert::color3_to_vector3", [](Vector3 value) { return value; }),
    entry("core::convert::color3_to_color4",
          [](Vector3 color, float alpha) {
            return Vector4{color[0], color[1], color[2], alpha};
          }),
    entry("core::convert::color4_to_color3",
          [](Vector4 color) {
            return Vector3{color[0], color[1], color[2]};
          }),
    entry("core::convert::vector2_to_vector3",
          [](Vector2 vector, float z) {
            return Vector3{vector[0], vector[1], z};
          }),
    entry("core::convert::vector3_to_vector2",
          [](Vector3 vector) {
            return Vector2{vector[0], vector[1]};
          }),
    entry("core::convert::vector3_to_vector4",
          [](Vector3 vector, float w) {
            return Vector4{vector[0], vector[1], vector[2], w};
          }),
    entry("core::convert::vector4_to_vector3",
          [](Vector4 vector) {
            return Vector3{vector[0], vector[1], vector[2]};
          }),
    entry<matrix3To4>("core::convert::matrix3_to_matrix4"),
    entry<matrix4To3>("core::convert::matrix4_to_matrix3"),
};

}  // namespace

KernelTable convertKernels() { return kKernels; }

}  // namespace orvlib
