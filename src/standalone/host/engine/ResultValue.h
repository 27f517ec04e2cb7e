#pragma once

#include <string>
#include <variant>
#include <vector>

namespace vesk {

/// The result of a command; texts are UTF-8.
using ResultValue = std::variant<std::monostate, bool, int, unsigned int, double, std::string,
                                 std::vector<std::string>>;

inline bool hasResult(const ResultValue& value) { return value.index() != 0; }

/// The value as text: numbers in the shortest form that reads back; an array one element a line.
std::string toText(const ResultValue& value);

/// The value as JSON on one line, `null` for a number that is not finite; empty when there is none.
std::string toJson(const ResultValue& value);

}  // namespace vesk
