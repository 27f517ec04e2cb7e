#include "standalone/workspace/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/workspace/CommandPanel.h"
#include "standalone/workspace/MainMenu.h"
#include "standalone/workspace/Outliner.h"
#include "standalone/workspace/Theme.h"
#include "standalone/workspace/UndoHistory.h"
#include "standalone/workspace/WorkspaceFile.h"

namespace vesk {
namespace {

MainWindow* currentWindow = nullptr;

constexpr QSize kInitialSize(1280, 800);  // at 100 percent
constexpr int kColumnWidth = 320;         // of the outliner and the history, likewise
constexpr int kCommandsWidth = 640;       // in a window of their own, likewise

PanelSettings ownPanel(const char* name, const char* label, int width) {
  PanelSettings settings;
  settings.name = name;
  settings.label = label;
  settings.initialWidth = width;
  return settings;
}

}  // namespace

MainWindow::MainWindow(HostSession& session, WindowOptions options)
    : session_(session),
      options_(std::move(options)),
      chosenScale_(chosenInterfaceScale()),
      appliedScale_(0),
      panels_(*this, session, workspace_),
      columns_(*this, panels_),
      idle_([this] { session_.runIdleLines(); }),
      title_([this] { refreshTitle(); }) {
  currentWindow = this;
  workspace_.scaleForThisRun = options_.scaleForThisRun;
  followScale();
  setObjectName("window");
  setDockNestingEnabled(true);
  setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
  setInitialSize();
  menu_ = std::make_unique<MainMenu>(*this, session_);
  addOwnPanels();
  watchSession();
  refreshTitle();
}

MainWindow::~MainWindow() {
  observations_.clear();
  if (currentWindow == this) currentWindow = nullptr;
}

MainWindow* MainWindow::current() { return currentWindow; }

/// A screen that nobody sees sets no limits.
void MainWindow::setInitialSize() {
  const QSize wanted(theme::scaled(kInitialSize.width()), theme::scaled(kInitialSize.height()));
  const bool seen = QApplication::platformName() != "offscreen";
  resize(seen ? wanted.boundedTo(screen()->availableSize()) : wanted);
}

void MainWindow::addOwnPanels() {
  panels_.create(ownPanel("outliner", "Outliner", kColumnWidth),
                 [this] { return new Outliner(session_, options_.openers); });
  panels_.create(ownPanel("undoHistory", "Undo History", kColumnWidth),
                 [this] { return new UndoHistory(session_); });
  panels_.create(ownPanel("commandPanel", "Commands", kCommandsWidth),
                 [this] { return new CommandPanel(session_); });
  arrangeOwnPanels();
  workspace_.setCurrentParent(nullptr);
}

void MainWindow::arrangeOwnPanels() {
  Panel* outliner = panels_.find("outliner");
  Panel* history = panels_.find("undoHistory");
  Panel* commands = panels_.find("commandPanel");
  for (Panel* panel : {outliner, history, commands}) {
    panel->setFloating(false);
    panel->show();
  }
  addDockWidget(Qt::LeftDockWidgetArea, outliner);
  splitDockWidget(outliner, commands, Qt::Horizontal);
  splitDockWidget(outliner, history, Qt::Vertical);
  const int column = std::min(theme::scaled(kColumnWidth), width() / 4);
  resizeDocks({outliner, commands}, {column, width() - column}, Qt::Horizontal);
  resizeDocks({outliner, history}, {height() * 3 / 5, height() * 2 / 5}, Qt::Vertical);
}

void MainWindow::watchSession() {
  observations_.push_back(
      session_.engine().lineEnded().add([this](const FinishedLine&) { lineEnded(); }));
  observations_.push_back(session_.scene().changed().add([this] { title_.request(); }));
  observations_.push_back(session_.idleQueue().added().add([this] { idle_.request(); }));
  if (!session_.idleQueue().isEmpty()) idle_.request();
}

void MainWindow::lineEnded() {
  followScale();
  leaveWhenAskedToQuit(session_);
}

/// A scale that the user chooses while the program runs goes ahead of that of the run.
void MainWindow::followScale() {
  const int chosen = chosenInterfaceScale();
  if (appliedScale_ != 0 && chosen != chosenScale_) workspace_.scaleForThisRun = 0;
  chosenScale_ = chosen;
  if (interfaceScale() == appliedScale_) return;
  const int former = std::exchange(appliedScale_, interfaceScale());
  if (former != 0) columns_.note();
  theme::apply();
  if (former != 0) columns_.restore(double(appliedScale_) / former);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  columns_.restore();
}

void MainWindow::refreshTitle() {
  const QString path = QString::fromStdString(session_.scene().path());
  const QString file = path.isEmpty() ? "New scene" : QFileInfo(path).fileName();
  setWindowTitle(file + "[*] \u2013 vesk");
  setWindowFilePath(path);
  setWindowModified(session_.scene().isModified());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (session_.quitRequested) {
    event->accept();
    leaveWhenAskedToQuit(session_);
  } else {
    event->ignore();
    menu_->quit();
  }
}

std::string MainWindow::workspacePath() const {
  const std::string& folder = session_.options().preferencesFolder;
  return folder.empty() ? "" : folder + "/workspace.json";
}

WorkspaceState MainWindow::workspaceState() const {
  WorkspaceState state{saveGeometry(), saveState(), {}};
  for (const Panel* panel : panels_.panels()) {
    if (panel->isOwn() || panel->settings().uiScript.empty()) continue;
    PanelSettings settings = panel->settings();
    settings.floating = panel->isFloating();
    settings.visible = panel->isShown();
    const auto plugin = session_.plugins().find(settings.requiredPlugin);
    if (plugin) settings.pluginPath = plugin->path();
    state.panels.push_back(std::move(settings));
  }
  return state;
}

std::string MainWindow::saveWorkspace(const std::string& path) {
  const QFileInfo file(QString::fromStdString(path));
  QDir().mkpath(file.absolutePath());
  return writeAtomically(path, workspaceText(workspaceState()));
}

bool MainWindow::restoreWorkspace(const std::string& path) {
  std::string reason;
  const auto state = readWorkspaceFile(path, reason);
  if (state) {
    apply(*state);
  } else if (!reason.empty()) {
    session_.messages().warning("the workspace " + vesk::quoted(path) + " cannot be read: " +
                                reason + "; the default workspace takes its place");
    resetWorkspace();
  }
  return state.has_value();
}

void MainWindow::apply(const WorkspaceState& state) {
  panels_.clear();
  const std::vector<QPointer<Panel>> waiting = makePanels(state.panels);
  restoreGeometry(state.geometry);
  if (!restoreState(state.arrangement)) arrangeOwnPanels();
  for (const QPointer<Panel>& panel : waiting) {  // what one runs may close another
    if (panel) panels_.load(*panel);
  }
  workspace_.setCurrentParent(nullptr);
}

/// Gives those whose content is wanted at once. All panels stand where they belong before the first
/// content is made.
std::vector<QPointer<Panel>> MainWindow::makePanels(const std::vector<PanelSettings>& panels) {
  std::vector<QPointer<Panel>> waiting;
  for (PanelSettings settings : panels) {
    const bool loadImmediately = std::exchange(settings.loadImmediately, false);
    Panel* panel = panels_.create(std::move(settings));
    if (!panel) continue;  // one of the host's own has the name
    panel->settings().loadImmediately = loadImmediately;
    if (loadImmediately) waiting.emplace_back(panel);
  }
  return waiting;
}

void MainWindow::resetWorkspace() {
  panels_.clear();
  arrangeOwnPanels();
}

}  // namespace vesk
