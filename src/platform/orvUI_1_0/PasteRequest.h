#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Compound.h"

namespace orvUI_v1 {

/// Where a paste goes and what it brings along.
struct PasteRequest {
  ORV_v1::AddRefWrapper<ORV_v1::Compound> target;

  /// Whether the new inputs are connected to what the copied ones were connected to.
  bool duplicateInputConnections = false;
};

}  // namespace orvUI_v1
