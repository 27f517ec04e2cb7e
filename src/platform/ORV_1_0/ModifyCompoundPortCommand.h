#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/GraphEnums.h"
#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/PortProperties.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

class Container;
class Port;

/// Edits the ports of a compound. Ports are named; a child port by its path below the compound.
/// A false answer of a recording operation means that there is no such port or type, and nothing is
/// recorded. A port that is created or renamed by what is recorded already counts as there.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. With nothing recorded it has nothing to do and is true. False, and nothing changed,
/// when something recorded cannot be done, and for a second `redo` or `undo` in a row.
class ORV_EXPORT ModifyCompoundPortCommand {
 public:
  ModifyCompoundPortCommand();

  /// Bound to the compound that the port belongs to.
  explicit ModifyCompoundPortCommand(const AddRefWrapper<Port>& port);
  ModifyCompoundPortCommand(const ModifyCompoundPortCommand&) = delete;
  ModifyCompoundPortCommand& operator=(const ModifyCompoundPortCommand&) = delete;
  ~ModifyCompoundPortCommand();

  /// As `CreateCompoundCommand::setParentCompound`.
  bool setParentCompound(Container* container, const char* path);

  /// Records a new port at the end of its list. A name that is taken gets a number, an empty one
  /// becomes "port", and one like "values.x" asks for a member of the fan-in port "values". Values
  /// that do not fit the type are left out.
  bool createPort(PortIOType direction, const char* name, const char* type,
                  const PortProperties& properties);
  bool renamePort(const char* name, const char* newName);

  /// To a position in the list of its direction; one past the end counts as the end.
  bool movePort(const char* name, unsigned int position);

  /// To the end of an input/output node of its direction.
  bool movePort(const char* name, const char* ioNode);
  bool hidePort(const char* name, bool hidden);
  bool setPortDataType(const char* name, const char* type);

  /// An empty value removes the key.
  bool setPortMetaDataValue(const char* name, const char* key, const char* value);
  bool deletePort(const char* name);

  /// `interactive` is for a value on its way: nothing is kept to undo it by, and no text gives the
  /// port its default back, unless it is an array. False for values that do not fit the port's
  /// type.
  bool setPortValues(const char* name, const StringArray& values, bool interactive);
  bool resetPortValues(const char* name);

  /// The first `redo`.
  bool doit();
  void undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
