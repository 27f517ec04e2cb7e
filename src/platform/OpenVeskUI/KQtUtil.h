#pragma once

#include "platform/OpenVesk/KString.h"

class QWidget;

VESK_API_OPEN

/// The host's interface, for plug-ins that add widgets to it.
class VESK_EXPORT KQtUtil {
 public:
  /// The widget of the layout that is current; after a `workspaceControl` line that panel's content
  /// area, until the next line that no command runs. Null when there is no window.
  static QWidget* getCurrentParent();

  /// Docks the child into the parent's layout, whose Qt parent chain then owns it. `name` becomes
  /// the child's object name unless it is empty. Returns the object name that the child has then;
  /// empty when child or parent is null. Without a parent nobody
  /// would own a child that has none either: it is deleted later.
  static KString addWidgetToVeskLayout(QWidget* child, QWidget* parent, const KString& name);

  /// A size in pixels at the interface scale of 100 percent, at the scale in force.
  static int dpiScale(int size);
};

VESK_API_CLOSE
