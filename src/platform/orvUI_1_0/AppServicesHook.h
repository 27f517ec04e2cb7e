#pragma once

#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvUI_v1 {

/// What the editors want of the program around them, beside edits of a graph. The order of the
/// operations is part of the interface.
class ORVUI_EXPORT AppServicesHook {
 public:
  /// The values of a direction.
  enum SyncDirection { kSavePrefs = 0, kLoadPrefs = 1 };

  AppServicesHook(const AppServicesHook&) = delete;
  AppServicesHook& operator=(const AppServicesHook&) = delete;

  /// When it is installed it is so no longer.
  virtual ~AppServicesHook();

  /// May happen later: do not expect the graph to have changed on return.
  virtual void undo() = 0;
  virtual void redo() = 0;

  /// What is edited until the chunk is closed is one step of undo. Chunks nest.
  virtual void openUndoChunk(const QString& name) = 0;
  virtual void closeUndoChunk() = 0;

  /// Closes the chunk and takes back what it did.
  virtual void abandonUndoChunk() = 0;

  /// While it is suspended edits are not kept for undo; what was kept before stays.
  virtual void setUndoSuspended(bool suspended) = 0;

  virtual bool isUndoing() = 0;
  virtual bool isRedoing() = 0;

  /// Stores the editors' preferences, or gives them back what was stored; see `SyncDirection`.
  virtual void syncUserPrefs(int direction) = 0;

  /// Shows the panel of that `ParameterEditorMode`.
  virtual void showParameterEditor(int mode) = 0;

 protected:
  AppServicesHook();
};

/// Installs the hook that all editors call; null takes it back. It stays the caller's, and may go
/// while it is installed.
ORVUI_EXPORT void setAppServicesHook(AppServicesHook* hook);

}  // namespace orvUI_v1
