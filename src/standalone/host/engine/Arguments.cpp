#include "standalone/host/engine/Arguments.h"

#include <array>
#include <charconv>
#include <utility>

namespace vesk {
namespace {

bool equalsIgnoringCase(std::string_view text, std::string_view lower) {
  if (text.size() != lower.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] + 32) : text[i];
    if (c != lower[i]) return false;
  }
  return true;
}

template <class Number>
bool readNumber(std::string_view text, Number& value) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number read{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), read);
  if (error != std::errc() || end != text.data() + text.size()) return false;
  value = read;
  return true;
}

}  // namespace

bool readBool(std::string_view text, bool& value) {
  constexpr std::array<std::pair<std::string_view, bool>, 8> kWords{{{"true", true},
                                                                     {"false", false},
                                                                     {"on", true},
                                                                     {"off", false},
                                                                     {"yes", true},
                                                                     {"no", false},
                                                                     {"1", true},
                                                                     {"0", false}}};
  for (const auto& [word, meaning] : kWords) {
    if (!equalsIgnoringCase(text, word)) continue;
    value = meaning;
    return true;
  }
  return false;
}

bool readInt(std::string_view text, int& value) { return readNumber(text, value); }

bool readUnsigned(std::string_view text, unsigned int& value) { return readNumber(text, value); }

bool readDouble(std::string_view text, double& value) {
  return isNumber(text) && readNumber(text, value);
}

}  // namespace vesk
