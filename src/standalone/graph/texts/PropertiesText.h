#pragma once

#include <optional>

#include "standalone/graph/texts/Properties.h"

namespace orvlib {

/// A set of properties as one text, such as `{color=red,tags={a,b}}`: the values of each key are a
/// list as `writeList` gives it. In a key, `=` is escaped too.
ORV_EXPORT std::string writeProperties(const Properties& properties);

/// Reads any text that `writeProperties` gives. Beyond that, empty text is an empty set, and a
/// separator may follow the last key. Blanks count. Nothing for a malformed text, an empty key, a
/// key without values and a key that comes twice.
ORV_EXPORT std::optional<Properties> readProperties(std::string_view text);

}  // namespace orvlib
