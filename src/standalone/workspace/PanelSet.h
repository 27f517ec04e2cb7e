#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "standalone/host/engine/Observers.h"
#include "standalone/host/engine/PluginLoader.h"
#include "standalone/workspace/Panel.h"

class QMainWindow;

namespace vesk {

class HostSession;
class Workspace;

/// The panels of a window by their names. The window's parent chain owns them.
class PanelSet final : public PluginHolder {
 public:
  /// All three outlive this object.
  PanelSet(QMainWindow& window, HostSession& session, Workspace& workspace);
  ~PanelSet() override;
  PanelSet(const PanelSet&) = delete;
  PanelSet& operator=(const PanelSet&) = delete;

  /// Makes a panel, and its content area the current parent unless the panel is one of the host's
  /// own. Null when the name is empty or taken.
  Panel* create(PanelSettings settings, Panel::ContentMaker makeContent = nullptr);

  /// Null for an unknown name.
  Panel* find(const std::string& name) const;

  /// The same, and one that was closed and is not deleted yet: it is known again.
  Panel* findOrRecall(const std::string& name);

  /// In the order in which they were made.
  const std::vector<Panel*>& panels() const { return panels_; }

  /// Shows the panel ahead of those that share its place, makes its content if that is still
  /// missing, and makes its content area the current parent unless it is one of the host's own.
  void restore(Panel& panel);

  /// Hides the panel; one that is not retained is unknown from then on, and deleted.
  void close(Panel& panel);

  /// A window of its own, or a place in the window: that which it had, or one by its width.
  void setFloating(Panel& panel, bool floating);

  /// Shows it ahead of those that share its place, or hides it.
  void setVisible(Panel& panel, bool visible);

  /// Sets the lines that make the content. They run at once when the panel is seen and still
  /// waits for its content.
  void setUiScript(Panel& panel, std::string script);

  /// Makes the content where it is missing: loads the plug-in that it requires, and runs its
  /// lines with the content area as the current parent. What fails is said in the panel.
  void load(Panel& panel);

  /// Deletes all panels but those of the host's own.
  void clear();

  std::string reasonToKeep(const Plugin& plugin) override;
  void letGo(const Plugin& plugin) override;

 private:
  void dock(Panel& panel);
  void place(Panel& panel);
  void putAtTheSide(Panel& panel, Panel* neighbour);
  void putAbove(Panel& panel, Panel& below);
  void watch(Panel& panel);
  void loadWhenSeen(Panel& panel);
  void forget(Panel& panel);
  void deletePanel(Panel& panel);
  void deleteIfClosed(Panel& panel);
  void makeCurrent(const Panel& panel);
  static void deleteAll(std::vector<QPointer<Panel>> panels);
  bool hasRequiredPlugin(Panel& panel);
  void runUiScript(Panel& panel);
  bool isOf(const Panel& panel, const Plugin& plugin) const;

  QMainWindow& window_;
  HostSession& session_;
  Workspace& workspace_;
  std::vector<Panel*> panels_;
  std::vector<QPointer<Panel>> closed_;  ///< unknown by now, and deleted soon
  Observation lines_;
};

}  // namespace vesk
