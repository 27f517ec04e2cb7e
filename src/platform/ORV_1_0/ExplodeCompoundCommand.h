#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

class Container;

/// Puts the content of compounds in their places: their nodes and annotations move to the level,
/// and wires that went through their ports join directly. Recording changes nothing: `redo` carries
/// out what is recorded, in that order, all of it or nothing. With nothing recorded it has nothing
/// to do and is true. False, and nothing changed, when something recorded cannot be done, and for a
/// second `redo` or `undo` in a row. A referenced or locked compound cannot be exploded, nor one
/// with a connection through it whose two sides have types that do not convert, nor one whose
/// fan-in port with members leads on to an input that is no fan-in port.
class ORV_EXPORT ExplodeCompoundCommand {
 public:
  ExplodeCompoundCommand();
  ExplodeCompoundCommand(const ExplodeCompoundCommand&) = delete;
  ExplodeCompoundCommand& operator=(const ExplodeCompoundCommand&) = delete;
  ~ExplodeCompoundCommand();

  /// As `CreateCompoundCommand::setParentCompound`.
  bool setParentCompound(Container* container, const char* path);

  /// False, and nothing recorded, when the level has no compound of that name. A second naming
  /// changes nothing.
  bool addCompoundToExplode(const char* name);

  /// The nodes that the last `doit` or `redo` brought out, in order.
  unsigned int getCreatedNodeCount() const;

  /// Valid until the next operation of this object; empty text past the end.
  const char* getCreatedNodeName(unsigned int index) const;

  /// The first `redo`.
  bool doit();
  bool undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
