#pragma once

#include <QPointer>
#include <QWidget>
#include <string_view>

#include "platform/OpenVesk/KStatus.h"

namespace vesk {

class HostSession;

/// The window's side of `KQtUtil`. The window owns one while it is open; without it there is no
/// current parent.
class Workspace {
 public:
  Workspace();
  ~Workspace();
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  /// Null when no window is open.
  static Workspace* current();

  /// The content area into which a plug-in builds next; null when it is gone.
  QWidget* currentParent() const { return currentParent_; }
  void setCurrentParent(QWidget* parent) { currentParent_ = parent; }

  /// An interface scale that goes ahead of the user's; 0 for none.
  int scaleForThisRun = 0;

 private:
  QPointer<QWidget> currentParent_;
};

/// Whether the interface can be scaled to so many percent: 100, 125, 150, 175 or 200.
bool isInterfaceScale(int percent);

/// The user's interface scale: the option variable "interfaceScale" when it is one that is offered,
/// else 100.
int chosenInterfaceScale();

/// The interface scale in force: that of this run, or else the user's.
int interfaceScale();

/// Leaves the event loop, if one runs, when the session has been asked to quit.
void leaveWhenAskedToQuit(const HostSession& session);

/// Runs a line as if the user had typed it.
KStatus runLine(std::string_view line);

}  // namespace vesk
