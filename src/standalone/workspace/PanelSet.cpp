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
#include "standalone/workspace/Theme.h"
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

Panel* PanelSet::create(PanelSettings settings, Panel::ContentMaker makeContent) {
  if (settings.name.empty() || find(settings.name)) return nullptr;
  auto* panel = new Panel(std::move(settings), &window_);
  panel->makeContent = std::move(makeContent);
  panels_.push_back(panel);
  for (const auto& plugin : session_.plugins().plugins()) {
    if (session_.engine().isRunningCommandOf(plugin.get())) {
      makers_[panel].push_back(plugin->name());
    }
  }
  watch(*panel);
  dock(*panel);
  workspace_.setCurrentParent(panel->content());
  if (panel->settings().loadImmediately) load(*panel);
  return panel;
}

void PanelSet::dock(Panel& panel) {
  window_.addDockWidget(Qt::LeftDockWidgetArea, &panel);
  if (panel.settings().floating) {
    panel.setFloating(true);
    panel.resize(panel.sizeHint());
  } else {
    place(panel);
  }
  panel.setVisible(panel.settings().visible);
  if (panel.settings().visible) panel.raise();
}

/// Narrow panels stand in a column at the side, wide ones above the last of the host's own; those
/// behind the first one of either are tabs.
void PanelSet::place(Panel& panel) {
  panel.placed = true;
  if (panel.makeContent) return;
  Panel* beside = nullptr;
  Panel* below = nullptr;
  for (Panel* other : panels_) {
    if (other == &panel || !other || !other->isShown() || other->isFloating()) continue;
    if (other->makeContent) {
      below = other;
    } else if (other->isNarrow() == panel.isNarrow()) {
      beside = other;
    }
  }
  if (beside) {
    window_.tabifyDockWidget(beside, &panel);
  } else if (panel.isNarrow()) {
    putAtTheSide(panel, below);
  } else if (below) {
    putAbove(panel, *below);
  }
}

void PanelSet::putAtTheSide(Panel& panel, Panel* neighbour) {
  window_.addDockWidget(Qt::RightDockWidgetArea, &panel);
  if (!neighbour) return;
  const int room = neighbour->width();
  const int width = std::min(theme::scaled(panel.settings().initialWidth), room / 2);
  window_.resizeDocks({neighbour, &panel}, {room - width, width}, Qt::Horizontal);
}

void PanelSet::setFloating(Panel& panel, bool floating) {
  const bool comesIn = !floating && panel.isFloating() && !panel.placed;
  panel.setFloating(floating);
  if (comesIn) place(panel);
}

void PanelSet::putAbove(Panel& panel, Panel& below) {
  const int height = theme::scaled(panel.settings().initialHeight);
  const int room = below.height();
  window_.splitDockWidget(&below, &panel, Qt::Vertical);
  window_.splitDockWidget(&panel, &below, Qt::Vertical);  // changes places
  const int wanted = std::min(height, room * 3 / 4);
  window_.resizeDocks({&panel, &below}, {wanted, room - wanted}, Qt::Vertical);
}

void PanelSet::watch(Panel& panel) {
  panel.closeAsked = [name = panel.name()] {
    runLine("workspaceControl -edit -close " + vesk::quoted(name));
  };
  QObject::connect(&panel, &QDockWidget::visibilityChanged, &panel, [this, &panel](bool seen) {
    if (seen && !panel.tried) loadWhenSeen(panel);
  });
  QObject::connect(&panel, &QObject::destroyed, &window_, [this, gone = &panel] {
    std::erase(panels_, gone);
    makers_.erase(gone);
  });
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
  workspace_.setCurrentParent(panel.content());
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
    panel.deleteLater();
  } else {
    WorkspaceApplication::deleteWhenSafe(&panel);
  }
}

void PanelSet::forget(Panel& panel) {
  if (workspace_.currentParent() == panel.content()) workspace_.setCurrentParent(nullptr);
  std::erase(panels_, &panel);
  makers_.erase(&panel);
  panel.setObjectName({});  // a new panel may have the name from now on
}

void PanelSet::clear() {
  for (Panel* panel : std::vector<Panel*>(panels_)) {
    if (panel->makeContent) continue;
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
  if (panel.makeContent) {
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
  const auto makers = makers_.find(&panel);
  return makers != makers_.end() && std::ranges::count(makers->second, plugin.name()) > 0;
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
