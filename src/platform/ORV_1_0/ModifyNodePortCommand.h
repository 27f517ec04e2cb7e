#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/GraphEnums.h"
#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/PortProperties.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

/// Edits the ports of nodes. Ports are named by their path below the node. A false answer of a
/// recording operation means that there is no such node, port or type, and nothing is recorded.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. With nothing recorded it has nothing to do and is true. False, and nothing changed,
/// when something recorded cannot be done, and for a second `redo` or `undo` in a row.
class ORV_EXPORT ModifyNodePortCommand {
 public:
  ModifyNodePortCommand();
  ModifyNodePortCommand(const ModifyNodePortCommand&) = delete;
  ModifyNodePortCommand& operator=(const ModifyNodePortCommand&) = delete;
  ~ModifyNodePortCommand();

  /// Records a new port at the end of its list; with the name "values.x" a new member of the fan-in
  /// port "values", whose type is that of the port's elements.
  bool createPort(const AddRefWrapper<Node>& node, PortIOType direction, const char* name,
                  const char* type, const PortProperties& properties);

  /// False also for a port that belongs to the node's definition.
  bool deletePort(const AddRefWrapper<Node>& node, const char* name);

  /// As in `ModifyCompoundPortCommand`.
  bool setPortValues(const AddRefWrapper<Node>& node, const char* name, const StringArray& values,
                     bool interactive);
  bool resetPortValues(const AddRefWrapper<Node>& node, const char* name);
  bool setPortType(const AddRefWrapper<Node>& node, const char* name, const char* type);
  bool setPortMetaDataValue(const AddRefWrapper<Node>& node, const char* name, const char* key,
                            const char* value);

  /// Records setting or clearing the bits of `flags` in the port's flag word. The search values are
  /// those by which the port was found.
  bool handlePortFlags(const AddRefWrapper<Port>& port, Container::ESearchIOType ioType,
                       Container::ESearchMode mode, PortFlags flags, QueryPortFlags operation);

  /// The first `redo`.
  bool doit();
  void undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
