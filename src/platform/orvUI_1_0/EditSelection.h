#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/NodeList.h"

namespace orvUI_v1 {

/// What is selected in an editor. The lists are borrowed: they are valid for the call that they are
/// passed to, and belong to the caller.
struct EditSelection {
  /// The level that the selection is in.
  ORV_v1::AddRefWrapper<ORV_v1::Compound> parent;

  /// Never null; either may be empty.
  const ORV_v1::NodeList* nodes = nullptr;
  const ORV_v1::AnnotationList* annotations = nullptr;
};

}  // namespace orvUI_v1
