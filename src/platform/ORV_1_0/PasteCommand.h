#pragma once

#include "platform/ORV_1_0/CopyPasteCommandBase.h"
#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

class Container;

/// Adds what is on the clipboard to a compound. All of it or nothing: false, and nothing changed,
/// when the clipboard holds no graph, and for a second `redo` or `undo` in a row.
class ORV_EXPORT PasteCommand : public CopyPasteCommandBase {
 public:
  PasteCommand();
  PasteCommand(const PasteCommand&) = delete;
  PasteCommand& operator=(const PasteCommand&) = delete;
  ~PasteCommand();

  /// As `CreateCompoundCommand::setParentCompound`.
  bool setParentCompound(Container* container, const char* path);

  /// Whether a pasted node also gets the connections that came into its source from nodes that were
  /// not copied, as far as those nodes are still at their paths.
  void duplicateSourceInputConnections(bool duplicate);

  /// The first `redo`.
  bool doit();
  bool undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
