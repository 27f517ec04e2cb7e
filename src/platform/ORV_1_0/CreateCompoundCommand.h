#pragma once

#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

class Container;

/// Makes a compound out of nodes and annotations of one level. Wires between what moves in and what
/// stays go through new ports of the compound.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. False, and nothing changed, when something recorded cannot be done, and for a second
/// `redo` or `undo` in a row.
class ORV_EXPORT CreateCompoundCommand {
 public:
  CreateCompoundCommand();
  CreateCompoundCommand(const CreateCompoundCommand&) = delete;
  CreateCompoundCommand& operator=(const CreateCompoundCommand&) = delete;
  ~CreateCompoundCommand();

  /// The level to work in, by its path. False, and nothing bound, when there is no such compound.
  bool setParentCompound(Container* container, const char* path);

  /// The name asked for; a name that is taken gets a number.
  void setNewCompoundName(const char* name);

  /// False, and nothing recorded, when the level has no such node or annotation, and for an
  /// input/output node, which shows ports of the level that it is in. A second naming changes
  /// nothing.
  bool addNodeToMove(const char* name);
  bool addAnnotationToMove(const char* name);

  /// The full path of the compound that the last `doit` or `redo` made; empty before.
  String getCreatedCompoundPath() const;

  /// The first `redo`.
  bool doit();
  bool undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
