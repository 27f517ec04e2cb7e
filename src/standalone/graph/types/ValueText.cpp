#include "standalone/graph/types/ValueText.h"

#include <array>
#include <charconv>

namespace orvlib {
namespace {

constexpr std::array kScalarKindNames{"boolean", "integer", "float", "string"};

/// Null, or what is wrong with the text.
template <class Number>
const char* parseScalar(const std::string& text, Number& number) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc::result_out_of_range) return "is out of range";
  if (error != std::errc() || stop != end) return "is not a number";
  return nullptr;
}

template <>
const char* parseScalar(const std::string& text, std::int32_t& number) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc::result_out_of_range) return "is out of range";
  if (error != std::errc() || stop != end) return "is not a whole number";
  return nullptr;
}

template <>
const char* parseScalar(const std::string& text, bool& boolean) {
  boolean = text == "true";
  return boolean || text == "false" ? nullptr : "is neither true nor false";
}

template <>
const char* parseScalar(const std::string& text, std::string& string) {
  string = text;
  return nullptr;
}

/// Room for the longest float: a sign, the 39 digits of the largest, a point and the decimals.
constexpr std::size_t kLongestNumber = 42 + FloatForm::kMostDigits;

template <class Number, class... Form>
std::string printNumber(Number number, Form... form) {
  std::array<char, kLongestNumber> buffer;
  char* const first = buffer.data();
  return {first, std::to_chars(first, first + buffer.size(), number, form...).ptr};
}

std::string printScalar(float number, const FloatForm& form) {
  switch (form.style) {
    case FloatForm::Style::Fixed:
      return printNumber(number, std::chars_format::fixed, int{form.digits});
    case FloatForm::Style::Scientific:
      return printNumber(number, std::chars_format::scientific, int{form.digits});
    case FloatForm::Style::Shortest:
      break;
  }
  return printNumber(number);
}
std::string printScalar(std::int32_t number, const FloatForm&) { return printNumber(number); }
std::string printScalar(bool boolean, const FloatForm&) { return boolean ? "true" : "false"; }
std::string printScalar(const std::string& string, const FloatForm&) { return string; }

std::string countReason(const ValueType& type, std::size_t count) {
  const std::string per = std::to_string(type.componentCount());
  const std::string need = type.isArray() ? "a multiple of " + per : per;
  return "type '" + type.name + "' takes " + need + (need == "1" ? " value" : " values") +
         ", not " + std::to_string(count);
}

bool countFits(const ValueType& type, std::size_t count) {
  return type.isArray() ? count % type.componentCount() == 0 : count == type.componentCount();
}

template <class Scalars>
ParsedValue parseScalars(const ValueType& type, const std::vector<std::string>& texts) {
  Scalars scalars;
  scalars.reserve(texts.size());
  for (const std::string& text : texts) {
    typename Scalars::value_type scalar{};
    if (const char* wrong = parseScalar(text, scalar)) {
      return {std::nullopt, "'" + text + "' " + wrong + " (type '" + type.name + "')"};
    }
    scalars.push_back(std::move(scalar));
  }
  return {Value(std::move(scalars)), {}};
}

}  // namespace

ParsedValue parseValue(const ValueType& type, const std::vector<std::string>& texts) {
  if (!countFits(type, texts.size())) return {std::nullopt, countReason(type, texts.size())};
  switch (type.scalar) {
    case ScalarKind::Boolean:
      return parseScalars<Booleans>(type, texts);
    case ScalarKind::Integer:
      return parseScalars<Integers>(type, texts);
    case ScalarKind::Float:
      return parseScalars<Floats>(type, texts);
    case ScalarKind::String:
      break;
  }
  return parseScalars<Texts>(type, texts);
}

std::vector<std::string> printValue(const Value& value) { return printValue(value, {}); }

std::vector<std::string> printValue(const Value& value, const FloatForm& form) {
  return std::visit(
      [&form](const auto& scalars) {
        std::vector<std::string> texts;
        texts.reserve(scalars.size());
        for (const auto& scalar : scalars) texts.push_back(printScalar(scalar, form));
        return texts;
      },
      value);
}

Value zeroValue(const ValueType& type) {
  const std::size_t count = type.isArray() ? 0 : type.componentCount();
  switch (type.scalar) {
    case ScalarKind::Boolean:
      return Booleans(count);
    case ScalarKind::Integer:
      return Integers(count);
    case ScalarKind::Float:
      return Floats(count);
    case ScalarKind::String:
      break;
  }
  return Texts(count);
}

const char* toText(ScalarKind kind) { return kScalarKindNames[static_cast<std::size_t>(kind)]; }

std::optional<ScalarKind> scalarKindFromText(const std::string& text) {
  for (std::size_t i = 0; i < kScalarKindNames.size(); ++i) {
    if (text == kScalarKindNames[i]) return static_cast<ScalarKind>(i);
  }
  return std::nullopt;
}

}  // namespace orvlib
