#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/NodeLibrary.h"
#include "platform/ORV_1_0/PortDataType.h"
#include "standalone/graph/library/LibrarySet.h"
#include "standalone/graph/library/RuntimeDescription.h"

namespace orvlib {

/// The objects of one reading of a runtime's files.
struct RuntimeContent {
  std::vector<ORV_v1::AddRefWrapper<ORV_v1::PortDataType>> portTypes;

  /// Null when the runtime has no root library.
  ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> rootLibrary;

  NameMap<ORV_v1::AddRefWrapper<ORV_v1::PortDataType>> typesByName;
  NameMap<ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary>> librariesByName;
  NameMap<ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition>> nodesByName;
};

/// Makes the objects of libraries that fit together. Sub-libraries stand in the order of their
/// files.
RuntimeContent makeContent(const RuntimeDescription& runtime, const LibrariesByFile& libraries);

}  // namespace orvlib
