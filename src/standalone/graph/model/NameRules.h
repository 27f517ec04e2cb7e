#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// The text as an identifier: a character that cannot be in one becomes `_`, once for each
/// character of UTF-8; a leading digit gets `_` before it; an empty text becomes `_`.
ORV_EXPORT std::string cleanName(std::string_view text);

/// A name as base and number: "add12" is ("add", 12), "add" is ("add", none), "add007" is ("add00",
/// 7) and "add0" is ("add", 0). A number has no leading zero.
struct NumberedName {
  static constexpr std::uint64_t kNoNumber = ~std::uint64_t{0};

  std::string base;
  std::uint64_t number = kNoNumber;

  bool operator==(const NumberedName&) const = default;
};

/// Of an identifier. Joining the base with any number gives a name of that very base and number; a
/// name that ends in more digits than a number can have is therefore a base with `_` appended.
ORV_EXPORT NumberedName numberedName(std::string_view name);

}  // namespace orvlib
