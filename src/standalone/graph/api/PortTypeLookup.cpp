#include "platform/ORV_1_0/PortTypeLookup.h"

namespace ORV_v1 {

PortTypeLookup::~PortTypeLookup() = default;

}  // namespace ORV_v1
