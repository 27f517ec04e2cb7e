#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/NodeLibrary.h"
#include "platform/ORV_1_0/PortDataType.h"
#include "standalone/graph/library/CompoundSet.h"
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

/// Makes the objects of libraries and compounds that fit together. Sub-libraries stand in the order
/// of their files, and those that only compounds make necessary come last; a library's compounds
/// come after its other nodes. Types and nodes that are in `former` already stay the objects that
/// they are.
RuntimeContent makeContent(const RuntimeDescription& runtime, const LibrariesByFile& libraries,
                           const CompoundFiles& compounds, const RuntimeContent& former);

}  // namespace orvlib
