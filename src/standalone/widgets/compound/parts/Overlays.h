#pragma once

#include <QMenu>
#include <QPointer>

#include "standalone/widgets/compound/parts/FindList.h"
#include "standalone/widgets/compound/parts/HelpOverlay.h"
#include "standalone/widgets/compound/parts/InlineEditor.h"
#include "standalone/widgets/compound/parts/NodeMenu.h"
#include "standalone/widgets/compound/parts/TypeList.h"

namespace orvuilib {

/// What opens over the canvas. Each is there for something on it: it goes along with that when the
/// view moves, and closes when that is gone.
class Overlays {
 public:
  Overlays(const Theme& theme, QWidget* canvas);

  NodeMenu& nodeMenu() { return *nodeMenu_; }
  TypeList& typeList() { return *typeList_; }
  FindList& findList() { return *findList_; }
  InlineEditor& inlineEditor() { return *inlineEditor_; }
  HelpOverlay& help() { return *help_; }

  /// What takes keys now; null when nothing is open.
  QWidget* keyTarget();

  /// Shows a menu or a dialog, which deletes itself when it closes, for as long as `isFor` says.
  void open(QWidget* popup, std::function<bool()> isFor);

  /// The canvas looks different now.
  void follow();

  /// The level that all is for is left.
  void leaveLevel();

 private:
  QWidget* canvas_;
  NodeMenu* nodeMenu_;
  TypeList* typeList_;
  FindList* findList_;
  InlineEditor* inlineEditor_;
  HelpOverlay* help_;
  QPointer<QWidget> popup_;
  std::function<bool()> isPopupFor_;
};

}  // namespace orvuilib
