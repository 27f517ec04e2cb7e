#include "standalone/host/engine/ResultValue.h"

#include <charconv>
#include <cmath>

#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

template <class Number>
std::string numberText(Number value) {
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return {buffer, end};
}

/// Quotes of the command language are those of JSON, but for the other control characters.
std::string jsonText(std::string_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string result;
  for (const char c : vesk::quoted(text)) {
    if (static_cast<unsigned char>(c) >= 0x20) {
      result += c;
    } else {
      result += "\\u00";
      result += kDigits[c >> 4];
      result += kDigits[c & 15];
    }
  }
  return result;
}

template <class Texts, class Write>
std::string joined(const Texts& texts, std::string_view separator, Write write) {
  std::string result;
  for (const auto& text : texts) {
    if (&text != &texts.front()) result += separator;
    result += write(text);
  }
  return result;
}

struct TextWriter {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const std::vector<std::string>& values) const {
    return joined(values, "\n", [](const std::string& text) { return text; });
  }
  template <class Number>
  std::string operator()(Number value) const {
    return numberText(value);
  }
};

struct JsonWriter : TextWriter {
  using TextWriter::operator();
  std::string operator()(double value) const {
    return std::isfinite(value) ? numberText(value) : "null";
  }
  std::string operator()(const std::string& value) const { return jsonText(value); }
  std::string operator()(const std::vector<std::string>& values) const {
    return "[" + joined(values, ",", jsonText) + "]";
  }
};

}  // namespace

std::string toText(const ResultValue& value) { return std::visit(TextWriter{}, value); }

std::string toJson(const ResultValue& value) { return std::visit(JsonWriter{}, value); }

}  // namespace vesk
