#pragma once

#include <QListView>
#include <QWidget>

#include "standalone/host/engine/Observers.h"
#include "standalone/workspace/Coalesced.h"
#include "standalone/workspace/UndoModel.h"

namespace vesk {

class HostSession;

/// The steps of the undo queue. The current one is marked; a click on another, or Return, undoes
/// or redoes up to there, one line a step.
class UndoHistory final : public QWidget {
 public:
  /// `session` outlives the panel.
  explicit UndoHistory(HostSession& session);
  ~UndoHistory() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void refresh();
  void goTo(int row);

  HostSession& session_;
  UndoModel model_;
  QListView* view_;
  Coalesced refresh_;
  Observation observation_;
};

}  // namespace vesk
