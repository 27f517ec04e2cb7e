#pragma once

#include <QPointer>
#include <QWidget>

namespace vesk {

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

 private:
  QPointer<QWidget> currentParent_;
};

/// The interface scale in percent: the option variable "interfaceScale" when it is one of 100, 125,
/// 150, 175 and 200, else 100.
int interfaceScale();

}  // namespace vesk
