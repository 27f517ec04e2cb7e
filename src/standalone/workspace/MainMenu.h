#pragma once

#include <QAction>
#include <vector>

#include "standalone/host/engine/Observers.h"
#include "standalone/workspace/Coalesced.h"

class QMenu;

namespace vesk {

class HostSession;
class MainWindow;

/// The menus of the window. What they do is done by lines, as if they had been typed.
class MainMenu {
 public:
  MainMenu(MainWindow& window, HostSession& session);

  /// Ends the program, after asking what becomes of unsaved changes.
  void quit();

 private:
  void addFileMenu();
  void addEditMenu();
  void addPanelsMenu();
  void addHelpMenu();
  void refreshEdit();
  void refreshPanels();
  void addPanelEntries();
  void addOffers();
  void addScales();
  void newScene();
  void openScene();
  bool saveScene();
  bool saveSceneAs();
  bool mayDropScene();
  void aboutVesk();

  MainWindow& window_;
  HostSession& session_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  QAction* remove_ = nullptr;
  QAction* deselect_ = nullptr;
  QMenu* panels_ = nullptr;
  Coalesced edit_;
  std::vector<Observation> observations_;
};

}  // namespace vesk
