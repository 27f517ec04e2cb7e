#pragma once

#include <string>
#include <string_view>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// The first line of a selection's text, with its line end: the format, and the length and the
/// checksum of the lines that follow. A text that was cut off or changed on its way does not have
/// the line that its other lines make.
ORV_EXPORT std::string sealOf(std::string_view lines);

}  // namespace orvlib
