#pragma once

#include <QMainWindow>
#include <memory>
#include <string>
#include <vector>

#include "standalone/host/engine/Observers.h"
#include "standalone/workspace/Coalesced.h"
#include "standalone/workspace/Columns.h"
#include "standalone/workspace/PanelSet.h"
#include "standalone/workspace/WindowOptions.h"
#include "standalone/workspace/Workspace.h"

namespace vesk {

class MainMenu;
struct WorkspaceState;

/// The window: menus, the host's own panels, and those that lines make. It goes ahead of the
/// session's plug-ins and of the application.
class MainWindow final : public QMainWindow {
 public:
  /// `session` outlives the window.
  explicit MainWindow(HostSession& session, WindowOptions options = {});
  ~MainWindow() override;

  /// Null when there is no window.
  static MainWindow* current();

  PanelSet& panels() { return panels_; }
  const WindowOptions& options() const { return options_; }

  /// Where the workspace is kept; empty when the session keeps nothing.
  std::string workspacePath() const;

  /// Empty, or the reason why the file was not written.
  std::string saveWorkspace(const std::string& path);

  /// Arranges the panels as the file says, makes those that are missing, and runs their lines.
  /// Without such a file everything stays. A damaged one gives a warning and the default
  /// workspace. False unless the file was read.
  bool restoreWorkspace(const std::string& path);

  /// The host's own panels alone, where they were at the beginning.
  void resetWorkspace();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void addOwnPanels();
  void arrangeOwnPanels();
  void setInitialSize();
  WorkspaceState workspaceState() const;
  void apply(const WorkspaceState& state);
  std::vector<QPointer<Panel>> makePanels(const std::vector<PanelSettings>& panels);
  void watchSession();
  void lineEnded();
  void followScale();
  void refreshTitle();

  HostSession& session_;
  WindowOptions options_;
  Workspace workspace_;
  int chosenScale_;   ///< the user's, as last seen
  int appliedScale_;  ///< that the window has
  PanelSet panels_;
  Columns columns_;
  std::unique_ptr<MainMenu> menu_;
  Coalesced idle_;
  Coalesced title_;
  std::vector<Observation> observations_;
};

}  // namespace vesk
