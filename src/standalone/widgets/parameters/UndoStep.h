#pragma once

#include <QString>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/ContainerObject.h"

namespace orvuilib {

/// What is edited while it lives is one step of undo and one notification, also when it is undone.
class ORVUI_EXPORT UndoStep {
 public:
  /// Does nothing unless `several` edits follow: one alone is a step by itself. `what` names the
  /// step. The graphs must outlive it.
  UndoStep(bool several, const QString& what, std::vector<orvlib::ContainerObject*> graphs);
  UndoStep(const UndoStep&) = delete;
  UndoStep& operator=(const UndoStep&) = delete;
  ~UndoStep();

 private:
  bool hasChunk_ = false;
  std::vector<orvlib::ContainerObject*> graphs_;
};

/// What is edited while it lives is not kept for undo, if there is a hook for that.
class ORVUI_EXPORT UnrecordedEdits {
 public:
  UnrecordedEdits();
  UnrecordedEdits(const UnrecordedEdits&) = delete;
  UnrecordedEdits& operator=(const UnrecordedEdits&) = delete;
  ~UnrecordedEdits();
};

}  // namespace orvuilib
