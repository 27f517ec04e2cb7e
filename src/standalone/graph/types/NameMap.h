#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace orvlib {

struct NameHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view name) const {
    return std::hash<std::string_view>{}(name);
  }
};

/// A hashed lookup by name that takes any kind of text without a copy.
template <class T>
using NameMap = std::unordered_map<std::string, T, NameHash, std::equal_to<>>;

}  // namespace orvlib
