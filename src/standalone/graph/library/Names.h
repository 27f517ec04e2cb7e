#pragma once

#include <string_view>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// `[A-Za-z_][A-Za-z0-9_]*`
ORV_EXPORT bool isIdentifier(std::string_view text);

/// One or more identifiers with "::" between them.
ORV_EXPORT bool isQualifiedName(std::string_view text);

/// "core" for "core::math"; empty for "core".
ORV_EXPORT std::string_view parentName(std::string_view qualifiedName);

}  // namespace orvlib
