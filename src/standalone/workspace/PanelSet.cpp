#include "standalone/workspace/PanelSet.h"

#include <dlfcn.h>

#include <QApplication>
#include <QMainWindow>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/workspace/Workspace.h"
#include "standalone/workspace/WorkspaceApplication.h"

namespace vesk {
namespace {

/// Whether the class of an object lies in a loaded library. The first word of an object with
/// virtual functions points to their table, which lies where its class does.
bool isOfLibrary(const QWidget* widget, const void* libraryBase) {
  Dl_info info{};
  return dladdr(*reinterpret_cast<const void* const*>(widget), &info) != 0 &&
         info.dli_fbase == libraryBase;
}

/// The widgets whose code goes with a module, wherever they are.
std::vector<QPointer<QWidget>> widgetsOf(const Plugin& plugin) {
  std::vector<QPointer<QWidget>> widgets;
  for (QWidget* widget : QApplication::allWidgets()) {
    if (isOfLibrary(widget, plugin.base())) widgets.emplace_back(widget);
  }
  return widgets;
}

}  // namespace

PanelSet::PanelSet(QMainWindow& window, HostSession& session, Workspace& workspace)
    : window_(window), session_(session), workspace_(workspace) {
  session_.plugins().setHolder(this);
  // What a line builds goes into a panel of its own. Nobody knows which panel a line that cannot be
  // read was to make.
  lines_ = session_.engine().lineBegan().add([this](const BegunLine& line) {
    if (line.outermost || !line.readable) workspace_.setCurrentParent(nullptr);
  });
}

PanelSet::~PanelSet() {
  session_.plugins().setHolder(nullptr);
  deleteAll(std::exchange(closed_, {}));
  deleteAll({panels_.begin(), panels_.end()});
}

/// One panel may own another: a pointer to it reads null by then.
void PanelSet::deleteAll(std::vector<QPointer<Panel>> panels) {
  for (const QPointer<Panel>& panel : panels) delete panel.data();
}

Panel* PanelSet::find(const std::string& name) const {
  const auto found = std::find_if(panels_.begin(), panels_.end(),
                                  [&](const Panel* panel) { return panel->name() == name; });
  return found == panels_.end() ? nullptr : *found;
}

Panel* PanelSet::findOrRecall(const std::string& name) {
  if (Panel* panel = find(name)) return panel;
  const auto closed =
      std::find_if(closed_.rbegin(), closed_.rend(),
                   [&](const QPointer<Panel>& panel) { return panel && panel->name() == name; });
  if (closed == closed_.rend()) return nullptr;
  Panel* panel = *closed;
  std::erase(closed_, panel);
  WorkspaceApplication::keep(*panel);
  panel->setKnown(true);
  panels_.push_back(panel);
  return panel;
}

Panel* PanelSet::create(PanelSettings settings, Panel::ContentMaker makeContent) {
  if (settings.name.empty() || find(settings.name)) return nullptr;
  auto* panel = new Panel(std::move(settings), &window_);
  panel->makeContent = std::move(makeContent);
  panels_.push_back(panel);
  for (const auto& plugin : session_.plugins().plugins()) {
    if (session_.engine().isRunningCommandOf(plugin.get())) {
      panel->makers.push_back(plugin->name());
    }
  }
  watch(*panel);
  dock(*panel);
  makeCurrent(*panel);
  if (panel->settings().loadImmediately) load(*panel);
  return panel;
}

/// Into the host's own panels nobody else builds.
void PanelSet::makeCurrent(const Panel& panel) {
  workspace_.setCurrentParent(panel.isOwn() ? nullptr : panel.content());
}

void PanelSet::watch(Panel& panel) {
  panel.closeAsked = [name = panel.name()] {
    runLine("workspaceControl -edit -close " + vesk::quoted(name));
  };
  QObject::connect(&panel, &QDockWidget::visibilityChanged, &panel, [this, &panel](bool seen) {
    if (seen && !panel.tried) loadWhenSeen(panel);
  });
  QObject::connect(&panel, &QObject::destroyed, &window_,
                   [this, gone = &panel] { std::erase(panels_, gone); });
}

/// Not from within the events that show it: the lines may do anything.
void PanelSet::loadWhenSeen(Panel& panel) {
  QMetaObject::invokeMethod(
      &panel,
      [this, &panel] {
        if (find(panel.name()) == &panel && !panel.tried) load(panel);
      },
      Qt::QueuedConnection);
}

void PanelSet::restore(Panel& panel) {
  panel.show();
  panel.raise();
  if (panel.isFloating()) panel.activateWindow();
  load(panel);
  makeCurrent(panel);
}

void PanelSet::setVisible(Panel& panel, bool visible) {
  panel.setVisible(visible);
  if (visible) panel.raise();
}

void PanelSet::setUiScript(Panel& panel, std::string script) {
  panel.settings().uiScript = std::move(script);
  const bool seen = !panel.visibleRegion().isEmpty();
  if (!panel.settings().loadImmediately && seen) load(panel);
}

void PanelSet::close(Panel& panel) {
  panel.hide();
  if (panel.settings().retain) return;
  deletePanel(panel);
}

void PanelSet::deletePanel(Panel& panel) {
  forget(panel);
  std::erase(closed_, nullptr);
  closed_.emplace_back(&panel);
  if (panel.settings().deleteLater) {
    QMetaObject::invokeMethod(
        &panel, [this, &panel] { deleteIfClosed(panel); }, Qt::QueuedConnection);
  } else {
    WorkspaceApplication::deleteWhenSafe(&panel);
  }
}

/// It may have been brought back meanwhile.
void PanelSet::deleteIfClosed(Panel& panel) {
  if (std::count(closed_.begin(), closed_.end(), &panel) > 0)
    WorkspaceApplication::deleteWhenSafe(&panel);
}

void PanelSet::forget(Panel& panel) {
  if (workspace_.currentParent() == panel.content()) workspace_.setCurrentParent(nullptr);
  std::erase(panels_, &panel);
  panel.setKnown(false);
}

void PanelSet::clear() {
  for (Panel* panel : std::vector<Panel*>(panels_)) {
    if (panel->isOwn()) continue;
    panel->hide();
    panel->settings().deleteLater = false;
    deletePanel(*panel);
  }
}

bool PanelSet::hasRequiredPlugin(Panel& panel) {
  const PanelSettings& settings = panel.settings();
  const std::string& name = settings.requiredPlugin;
  if (name.empty() || session_.plugins().find(name)) return true;
  std::error_code error;
  return std::filesystem::exists(settings.pluginPath, error) &&
         session_.plugins().load(settings.pluginPath) && session_.plugins().find(name);
}

void PanelSet::load(Panel& panel) {
  if (panel.loaded) return;
  if (panel.isOwn()) {
    panel.loaded = true;
    panel.content()->layout()->addWidget(panel.makeContent());
    return;
  }
  if (panel.settings().uiScript.empty()) return;
  panel.tried = true;
  panel.clearNote();
  if (!panel.isEmpty()) {  // its maker has filled it
    panel.loaded = true;
  } else if (hasRequiredPlugin(panel)) {
    runUiScript(panel);
  } else {
    panel.showNote(QString::fromStdString("This panel needs the plug-in " +
                                          vesk::quoted(panel.settings().requiredPlugin) +
                                          ", which is not loaded."));
  }
}

/// Not as the user's own line: nobody typed it, a journal that has what opened the panel has the
/// content too, and undo must not take what the content is made of.
void PanelSet::runUiScript(Panel& panel) {
  panel.loaded = true;
  const QPointer<Panel> alive = &panel;
  workspace_.setCurrentParent(panel.content());
  const CommandEngine::ScratchResult scratch(session_.engine());
  ResultValue result;
  const KStatus status =
      session_.engine().run(panel.settings().uiScript, result, {.display = false});
  leaveWhenAskedToQuit(session_);
  if (status || !alive) return;
  session_.messages().warning("the panel " + vesk::quoted(panel.name()) +
                              ": the lines that make its content failed");
  if (panel.isEmpty()) panel.showNote("The content of this panel could not be made.");
  panel.loaded = false;
}

bool PanelSet::isOf(const Panel& panel, const Plugin& plugin) const {
  if (panel.settings().requiredPlugin == plugin.name()) return true;
  return std::ranges::count(panel.makers, plugin.name()) > 0;
}

std::string PanelSet::reasonToKeep(const Plugin& plugin) {
  for (const Panel* panel : panels_) {
    if (isOf(*panel, plugin) && WorkspaceApplication::isHandlingEvents(*panel)) {
      return "its panel " + vesk::quoted(panel->name()) + " is handling an event";
    }
  }
  for (const QPointer<Panel>& panel : closed_) {
    if (panel && WorkspaceApplication::isHandlingEvents(*panel)) {
      return "a panel that was closed is still handling an event";
    }
  }
  return {};
}

void PanelSet::letGo(const Plugin& plugin) {
  deleteAll(std::exchange(closed_, {}));
  for (const QPointer<Panel> panel : std::vector<Panel*>(panels_)) {
    if (!panel || !isOf(*panel, plugin)) continue;
    forget(*panel);
    delete panel.data();
  }
  for (const QPointer<QWidget>& widget : widgetsOf(plugin)) delete widget.data();
}

}  // namespace vesk
