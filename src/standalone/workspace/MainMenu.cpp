#include "standalone/workspace/MainMenu.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/HostVersion.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/workspace/MainWindow.h"

namespace vesk {
namespace {

constexpr const char* kFileFilter = "Scenes (*.vesk);;All files (*)";
constexpr int kLongestStepName = 40;

/// A name as a menu shows it: short, on one line, and with every "&" as itself.
QString menuText(const std::string& name) {
  QString text = QString::fromStdString(name).simplified();
  if (text.size() > kLongestStepName) text = text.left(kLongestStepName - 1) + QChar(0x2026);
  return text.replace('&', "&&");
}

QAction* addLine(QMenu& menu, const QString& text, std::string line) {
  return menu.addAction(text, [line = std::move(line)] { runLine(line); });
}

void refreshStep(QAction& action, const QString& verb, bool there, const std::string& name) {
  action.setText(there && !name.empty() ? verb + " " + menuText(name) : verb);
  action.setEnabled(there);
}

}  // namespace

MainMenu::MainMenu(MainWindow& window, HostSession& session)
    : window_(window), session_(session), edit_([this] { refreshEdit(); }) {
  addFileMenu();
  addEditMenu();
  addPanelsMenu();
  addHelpMenu();
  const auto refresh = [this] { edit_.request(); };
  observations_.push_back(session_.undoQueue().changed().add(refresh));
  observations_.push_back(session_.scene().selection().changed().add(refresh));
  refreshEdit();
}

void MainMenu::addFileMenu() {
  QMenu* menu = window_.menuBar()->addMenu("&File");
  menu->addAction("&New", QKeySequence::New, &window_, [this] { newScene(); });
  menu->addAction("&Open\u2026", QKeySequence::Open, &window_, [this] { openScene(); });
  menu->addSeparator();
  menu->addAction("&Save", QKeySequence::Save, &window_, [this] { saveScene(); });
  menu->addAction("Save &As\u2026", QKeySequence("Ctrl+Shift+S"), &window_,
                  [this] { saveSceneAs(); });
  menu->addSeparator();
  menu->addAction("&Quit", QKeySequence("Ctrl+Q"), &window_, [this] { quit(); });
}

void MainMenu::addEditMenu() {
  QMenu* menu = window_.menuBar()->addMenu("&Edit");
  undo_ = addLine(*menu, "Undo", "undo");
  undo_->setShortcut(QKeySequence("Ctrl+Z"));
  redo_ = addLine(*menu, "Redo", "redo");
  redo_->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
  menu->addSeparator();
  remove_ = addLine(*menu, "&Delete Selected Nodes", "delete");
  deselect_ = addLine(*menu, "Select &Nothing", "select -clear");
}

void MainMenu::refreshEdit() {
  const UndoQueue& queue = session_.undoQueue();
  refreshStep(*undo_, "&Undo", queue.doneCount() > 0, queue.undoName());
  refreshStep(*redo_, "&Redo", queue.stepCount() > queue.doneCount(), queue.redoName());
  const bool selected = session_.scene().selection().size() > 0;
  remove_->setEnabled(selected);
  deselect_->setEnabled(selected);
}

void MainMenu::addPanelsMenu() {
  panels_ = window_.menuBar()->addMenu("&Panels");
  QObject::connect(panels_, &QMenu::aboutToShow, panels_, [this] { refreshPanels(); });
  refreshPanels();
}

void MainMenu::refreshPanels() {
  panels_->clear();
  addPanelEntries();
  addOffers();
  panels_->addSeparator();
  const bool kept = !window_.workspacePath().empty();
  addLine(*panels_, "&Save Workspace", "workspace -save")->setEnabled(kept);
  addLine(*panels_, "&Restore Saved Workspace", "workspace -restore")->setEnabled(kept);
  addLine(*panels_, "&Default Workspace", "workspace -reset");
  panels_->addSeparator();
  addScales();
}

void MainMenu::addPanelEntries() {
  for (const Panel* panel : window_.panels().panels()) {
    const bool shown = panel->isShown();
    const std::string action = shown ? "-close " : "-restore ";
    QAction* entry = addLine(*panels_, menuText(panel->settings().label),
                             "workspaceControl -edit " + action + vesk::quoted(panel->name()));
    entry->setCheckable(true);
    entry->setChecked(shown);
  }
}

void MainMenu::addOffers() {
  panels_->addSeparator();
  for (const WindowOptions::Offer& offer : window_.options().offers) {
    if (!session_.registry().find(offer.command)) continue;
    addLine(*panels_, "Open " + menuText(offer.label), offer.line);
  }
}

void MainMenu::addScales() {
  QMenu* menu = panels_->addMenu("&Interface Scale");
  auto* group = new QActionGroup(menu);
  for (const int scale : {100, 125, 150, 175, 200}) {
    QAction* entry = addLine(*menu, QString::number(scale) + " %",
                             "optionVar -intValue interfaceScale " + std::to_string(scale));
    entry->setCheckable(true);
    entry->setChecked(scale == interfaceScale());
    group->addAction(entry);
  }
}

void MainMenu::addHelpMenu() {
  QMenu* menu = window_.menuBar()->addMenu("&Help");
  menu->addAction("&List of Commands", QKeySequence("F1"), &window_, [] {
    runLine("workspaceControl -edit -restore commandPanel");
    runLine("help");
  });
  menu->addSeparator();
  menu->addAction("&About vesk", &window_, [this] { aboutVesk(); });
}

void MainMenu::aboutVesk() {
  QMessageBox::about(
      &window_, "About vesk",
      "<p><b>vesk " + QString::fromStdString(std::string(kHostVersion)) +
          "</b></p><p>A host for node graphs: command lines, undo, scenes and panels.</p>");
}

void MainMenu::newScene() {
  if (!mayDropScene()) return;
  runLine(session_.scene().isModified() ? "file -new -force" : "file -new");
}

void MainMenu::openScene() {
  if (!mayDropScene()) return;
  const QString folder = QFileInfo(QString::fromStdString(session_.scene().path())).path();
  const QString path = QFileDialog::getOpenFileName(&window_, "Open Scene", folder, kFileFilter);
  if (path.isEmpty()) return;
  const std::string force = session_.scene().isModified() ? " -force" : "";
  runLine("file -open " + vesk::quoted(path.toStdString()) + force);
}

bool MainMenu::saveScene() {
  return session_.scene().path().empty() ? saveSceneAs() : bool(runLine("file -save"));
}

bool MainMenu::saveSceneAs() {
  const QString path = QFileDialog::getSaveFileName(
      &window_, "Save Scene As", QString::fromStdString(session_.scene().path()), kFileFilter);
  return !path.isEmpty() && runLine("file -saveAs " + vesk::quoted(path.toStdString()));
}

void MainMenu::quit() {
  if (mayDropScene()) runLine("quit");
}

/// Asks when there are unsaved changes. False when the user wants to go on with them, or could not
/// save them.
bool MainMenu::mayDropScene() {
  if (!session_.scene().isModified()) return true;
  const QString path = QString::fromStdString(session_.scene().path());
  QMessageBox box(QMessageBox::Warning, "Unsaved Changes",
                  (path.isEmpty() ? "The new scene" : "The scene " + QFileInfo(path).fileName()) +
                      " has unsaved changes.",
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window_);
  box.setInformativeText("Save them, or they are lost.");
  box.setDefaultButton(QMessageBox::Save);
  const int answer = box.exec();
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && saveScene());
}

}  // namespace vesk
