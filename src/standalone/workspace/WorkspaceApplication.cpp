#include "standalone/workspace/WorkspaceApplication.h"

#include <QThread>
#include <algorithm>

namespace vesk {
namespace {

WorkspaceApplication* application() { return dynamic_cast<WorkspaceApplication*>(qApp); }

QDockWidget* panelAround(QObject* object) {
  for (; object; object = object->parent()) {
    if (auto* panel = qobject_cast<QDockWidget*>(object)) return panel;
  }
  return nullptr;
}

}  // namespace

bool WorkspaceApplication::notify(QObject* receiver, QEvent* event) {
  if (QThread::currentThread() != thread()) return QApplication::notify(receiver, event);
  deliveries_.push_back({panelAround(receiver), qobject_cast<QWindow*>(receiver)});
  const bool handled = QApplication::notify(receiver, event);
  deliveries_.pop_back();
  if (!waiting_.empty()) deleteThoseThatAreSafe();
  return handled;
}

bool WorkspaceApplication::isDeliveringTo(const QDockWidget& panel) const {
  return std::any_of(deliveries_.begin(), deliveries_.end(), [&](const Delivery& delivery) {
    const bool frame = panel.isWindow() && delivery.window;
    return delivery.panel == &panel || (frame && delivery.window == panel.windowHandle());
  });
}

void WorkspaceApplication::deleteThoseThatAreSafe() {
  const auto waiting = std::exchange(waiting_, {});
  for (const QPointer<QDockWidget>& panel : waiting) {
    if (panel) deleteWhenSafe(panel);
  }
}

bool WorkspaceApplication::isHandlingEvents(const QDockWidget& panel) {
  const WorkspaceApplication* self = application();
  return !self || self->isDeliveringTo(panel);
}

void WorkspaceApplication::deleteWhenSafe(QDockWidget* panel) {
  WorkspaceApplication* self = application();
  if (!self) {
    panel->deleteLater();
  } else if (self->isDeliveringTo(*panel)) {
    self->waiting_.emplace_back(panel);
  } else {
    delete panel;
  }
}

void WorkspaceApplication::keep(const QDockWidget& panel) {
  if (WorkspaceApplication* self = application()) std::erase(self->waiting_, &panel);
}

}  // namespace vesk
