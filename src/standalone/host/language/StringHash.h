#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vesk {

struct StringHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const {
    return std::hash<std::string_view>{}(text);
  }
};

/// A hash map from text that is asked with any kind of text, without a copy.
template <class Value>
using StringMap = std::unordered_map<std::string, Value, StringHash, std::equal_to<>>;

}  // namespace vesk
