#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

class Container;

/// Edits the annotations of a compound. What names an annotation that is not there is passed over
/// when it is carried out. Recording changes nothing: `redo` carries out what is recorded, in that
/// order, all of it or nothing. With nothing recorded it has nothing to do and is true. False, and
/// nothing changed, when something recorded cannot be done, and for a second `redo` or `undo` in a
/// row.
class ORV_EXPORT ModifyCompoundAnnotationCommand {
 public:
  ModifyCompoundAnnotationCommand();
  ModifyCompoundAnnotationCommand(const ModifyCompoundAnnotationCommand&) = delete;
  ModifyCompoundAnnotationCommand& operator=(const ModifyCompoundAnnotationCommand&) = delete;
  ~ModifyCompoundAnnotationCommand();

  /// As `CreateCompoundCommand::setParentCompound`.
  bool setParentCompound(Container* container, const char* path);

  /// A name that is taken gets a number. A sticky note is named "note".
  bool createBackdrop(const char* name);
  bool createStickyNote();
  bool deleteAnnotation(const char* name);
  bool renameAnnotation(const char* name, const char* newName);

  /// An empty value removes the key.
  bool setAnnotationMetaDataValue(const char* name, const char* key, const char* value);

  /// The first `redo`.
  bool doit();
  void undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
