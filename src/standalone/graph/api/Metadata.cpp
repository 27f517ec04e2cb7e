#include "platform/ORV_1_0/Metadata.h"

namespace ORV_v1 {

Metadata::Metadata() = default;
Metadata::~Metadata() = default;

}  // namespace ORV_v1
