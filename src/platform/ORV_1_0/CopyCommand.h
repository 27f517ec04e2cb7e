#pragma once

#include "platform/ORV_1_0/CopyPasteCommandBase.h"
#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

class Container;

/// Puts nodes and annotations of one level on the clipboard. No graph changes.
class ORV_EXPORT CopyCommand : public CopyPasteCommandBase {
 public:
  CopyCommand();
  CopyCommand(const CopyCommand&) = delete;
  CopyCommand& operator=(const CopyCommand&) = delete;
  ~CopyCommand();

  /// As `CreateCompoundCommand::setParentCompound`.
  bool setParentCompound(Container* container, const char* path);

  /// False, and nothing added, when the level has no such node or annotation, and for a second
  /// naming of it.
  bool addSourceNode(const char* name);
  bool addSourceAnnotation(const char* name);

  /// Replaces what is on the clipboard; with no sources, by nothing. False, and the clipboard
  /// unchanged, when that fails.
  bool doit();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
