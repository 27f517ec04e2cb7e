#pragma once

#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"

/// The library's commands that a command of a host holds, of which a line uses one or none.
class BoundCommands {
 public:
  BoundCommands(ORV_v1::Container& graph, const char* path)
      : isBound_(create_.setParentCompound(&graph, path) &&
                 explode_.setParentCompound(&graph, path) &&
                 annotations_.setParentCompound(&graph, path) &&
                 ports_.setParentCompound(&graph, path)) {}

  /// With nothing recorded.
  bool redo() { return isBound_ && values_.redo(); }

 private:
  ORV_v1::CreateCompoundCommand create_;
  ORV_v1::ExplodeCompoundCommand explode_;
  ORV_v1::NodeCommand added_;
  ORV_v1::NodeCommand removed_;
  ORV_v1::ModifyCompoundAnnotationCommand annotations_;
  ORV_v1::ModifyCompoundPortCommand ports_;
  ORV_v1::ModifyCompoundPortCommand values_;
  ORV_v1::MetadataCommand metadata_;
  bool isBound_;
};
