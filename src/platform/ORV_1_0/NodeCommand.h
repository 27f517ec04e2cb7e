#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/GraphEnums.h"
#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

class Compound;

/// Adds and removes nodes.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. With nothing recorded it has nothing to do and is true. False, and nothing changed,
/// when something recorded cannot be done, and for a second `redo` or `undo` in a row.
class ORV_EXPORT NodeCommand {
 public:
  NodeCommand();
  NodeCommand(const NodeCommand&) = delete;
  NodeCommand& operator=(const NodeCommand&) = delete;
  ~NodeCommand();

  /// Records a new node of that definition, named after it. `connectTo` names a port of the level
  /// that the node is to be connected to, as "add1.result" or as a full path; empty or null for
  /// none. False, and nothing recorded, for a null compound and an unknown type.
  bool createNode(const AddRefWrapper<Compound>& compound, const char* type, const char* connectTo);

  /// Records a new input/output node. With `connectTo` the compound gets a port for that port,
  /// which the node shows. False, and nothing recorded, for a null compound and any other kind.
  bool createIONode(const AddRefWrapper<Compound>& compound, NodeFlags kind, const char* connectTo);

  /// Records the removal of a child node with all its connections. False, and nothing recorded,
  /// when there is no such node. A second naming changes nothing.
  bool removeNode(const AddRefWrapper<Compound>& compound, const char* name);

  /// The names of the nodes that the last `doit` or `redo` added, in order.
  StringArray getCreatedNodeNames() const;

  /// The first `redo`.
  bool doit();
  bool undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
