#include "platform/ORV_1_0/WatchPoint.h"

namespace ORV_v1 {

WatchPoint::WatchPoint() = default;
WatchPoint::~WatchPoint() = default;

}  // namespace ORV_v1
