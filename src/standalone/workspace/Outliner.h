#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "standalone/host/engine/Observers.h"
#include "standalone/workspace/Coalesced.h"
#include "standalone/workspace/NodeModel.h"
#include "standalone/workspace/WindowOptions.h"

class QHBoxLayout;
class QLineEdit;

namespace vesk {

class HostSession;
class NodeView;

/// All nodes of the scene, their selection both ways; renames, deletes and opens nodes, by lines.
class Outliner final : public QWidget {
 public:
  /// `session` outlives the outliner.
  Outliner(HostSession& session, std::vector<WindowOptions::NodeOpener> openers);
  ~Outliner() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void applySizes();
  void refresh();
  void showSceneSelection();
  void selectInScene();
  void deleteSelected();
  void open(const QModelIndex& index);
  void showMenu(const QPoint& place);
  void addCreateEntries(class QMenu& menu);
  std::string selectedNames() const;

  HostSession& session_;
  std::vector<WindowOptions::NodeOpener> openers_;
  NodeModel model_;
  QHBoxLayout* top_;  ///< around the filter
  QLineEdit* filter_;
  NodeView* view_;
  Coalesced refresh_;
  std::vector<Observation> observations_;
};

}  // namespace vesk
