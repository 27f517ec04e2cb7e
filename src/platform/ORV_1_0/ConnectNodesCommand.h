#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

class NodeList;

/// Chains nodes: each to the next, by the first output and the first free input whose types are the
/// same, else whose types convert.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. False, and nothing changed, when something recorded cannot be done, and for a second
/// `redo` or `undo` in a row.
class ORV_EXPORT ConnectNodesCommand {
 public:
  ConnectNodesCommand();
  ConnectNodesCommand(const ConnectNodesCommand&) = delete;
  ConnectNodesCommand& operator=(const ConnectNodesCommand&) = delete;
  ~ConnectNodesCommand();

  /// Records the nodes. False, and nothing recorded, for fewer than two nodes and for nodes that
  /// are not of one level.
  bool connect(const NodeList& nodes);

  /// The first `redo`.
  bool doit();
  bool undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
