#pragma once

/// What every header of the graph library shares.

#define ORV_EXPORT __attribute__((visibility("default")))

namespace ORV_v1 {
/// The library's own key to hidden representations; a caller has no use for it.
struct GraphAccess;
}  // namespace ORV_v1
