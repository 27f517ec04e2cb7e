#pragma once

#include <optional>
#include <string_view>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/types/ValueType.h"

namespace orvlib {

/// Reads the value texts of a port from one text, which is a list as `readList` takes it: one text
/// a component, an array's elements one after the other. Nothing for a malformed list and for texts
/// that `parseValue` refuses for the type; a null type takes any list. For a type of one text,
/// empty text is that one text and not a list of none.
ORV_EXPORT std::optional<std::vector<std::string>> readValues(std::string_view text,
                                                              const ValueType* type);

}  // namespace orvlib
