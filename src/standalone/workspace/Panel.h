#pragma once

#include <QDockWidget>
#include <functional>
#include <string>
#include <vector>

namespace vesk {

/// What a panel is made of, as lines and the workspace file give it.
struct PanelSettings {
  std::string name;      ///< any text but the empty one; no two panels share it
  std::string label;     ///< of the title
  std::string uiScript;  ///< lines that fill the content area; empty when its maker does
  std::string requiredPlugin;
  std::string pluginPath;       ///< where the required plug-in was last loaded from; may be empty
  int initialWidth = 400;       ///< at an interface scale of 100 percent
  int initialHeight = 300;      ///< likewise
  bool retain = true;           ///< closing hides the panel and keeps its content
  bool deleteLater = true;      ///< else closing deletes at once, as far as that is safe
  bool loadImmediately = true;  ///< else the content is made when the panel is first seen
  bool floating = false;
  bool visible = true;  ///< to begin with
};

/// A dockable part of the window: a title, and a content area that others fill.
class Panel final : public QDockWidget {
 public:
  using ContentMaker = std::function<QWidget*()>;

  Panel(PanelSettings settings, QWidget* parent);

  const std::string& name() const { return settings_.name; }

  /// One of the host's own: it is always there, and no lines make its content.
  bool isOwn() const { return makeContent != nullptr; }
  const PanelSettings& settings() const { return settings_; }
  PanelSettings& settings() { return settings_; }
  void setLabel(std::string label);

  /// Whether it goes by its name: one that is closed makes room for a new panel of the name.
  void setKnown(bool known);

  /// Where widgets are docked; it has a layout.
  QWidget* content() const { return widget(); }
  bool isEmpty() const;

  /// Shown by the user's will, on the screen or behind a tab.
  bool isShown() const { return !isHidden(); }

  /// To stand in a column rather than on top of others.
  bool isNarrow() const { return settings_.initialWidth < 400; }

  /// A text in place of the content, until `clearNote`.
  void showNote(const QString& text);
  void clearNote();

  /// What makes the content of a panel of the host's own; null for the others.
  ContentMaker makeContent;

  /// Called when the user closes the panel, in place of closing it.
  std::function<void()> closeAsked;

  /// The plug-ins whose commands were at work when it was made.
  std::vector<std::string> makers;

  bool loaded = false;  ///< the content has been made
  bool tried = false;   ///< it was to be made, well or not
  bool placed = false;  ///< it has had a place in the window

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  PanelSettings settings_;
};

}  // namespace vesk
