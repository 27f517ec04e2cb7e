#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvlib {

// The words by which the three kinds of stored text are told apart.

constexpr std::string_view kFormatVersion = "1";
constexpr std::string_view kSelectionVersion = "2";

constexpr std::string_view kGraphFormat = "vesk-graph";
constexpr std::string_view kContentFormat = "vesk-compound";
constexpr std::string_view kSelectionFormat = "vesk-nodes";

// The statement that opens the outermost block.
constexpr std::string_view kGraphBlock = "graph";
constexpr std::string_view kContentBlock = "content";
constexpr std::string_view kSelectionBlock = "nodes";

/// States which graph a selection is from.
constexpr std::string_view kFromStatement = "from";

/// How many parameters of a watch point are always stated, by their values alone: record and limit.
/// Those after them stand by name and value, when they are not as in a new one.
constexpr std::size_t kStatedParameters = 2;

/// A value in the reason of an error.
inline std::string inQuotes(std::string_view text) { return "'" + std::string(text) + "'"; }

}  // namespace orvlib
