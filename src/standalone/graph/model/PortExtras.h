#pragma once

#include "standalone/graph/model/VertexArcs.h"
#include "standalone/graph/model/WatchPointObject.h"

namespace orvlib {

/// What only some ports have.
struct PortObject::Extras {
  Properties metadata;
  ORV_v1::AddRefWrapper<ORV_v1::WatchPoint> watchPoint;

  std::vector<std::string> innerLines;

  /// Null before it is first asked for, and kept true from then on.
  PortListRef listedPeers;

  // Of the outer face of a compound's port:
  PortRef inner;
  std::unique_ptr<CompoundPortVertex> vertex;
  CoreRef core;
  NodeObject* ioNode = nullptr;
  PortObject* statePartner = nullptr;
};

}  // namespace orvlib
