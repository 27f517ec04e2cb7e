#include "standalone/workspace/Columns.h"

#include <QApplication>
#include <QLayout>
#include <QMainWindow>
#include <algorithm>
#include <utility>

#include "standalone/workspace/PanelSet.h"

namespace vesk {

/// By the time a window hears of its size its layout has changed already: the application is asked.
Columns::Columns(QMainWindow& window, const PanelSet& panels) : window_(window), panels_(panels) {
  qApp->installEventFilter(this);
}

bool Columns::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver == &window_ && event->type() == QEvent::Resize) note();
  return false;
}

/// Those behind a tab lie to the left of all that is seen. The window may be too small already to
/// show all of the others.
void Columns::note() {
  noted_.clear();
  windowWidth_ = 0;
  for (Panel* panel : panels_.panels()) {
    if (panel->isFloating() || !panel->isVisible() || panel->x() < 0) continue;
    noted_.push_back({panel, panel->x(), panel->width()});
    windowWidth_ = std::max(windowWidth_, panel->geometry().right() + 1);
  }
}

/// By how much what begins at an edge grows: columns by the factor, the others share the rest.
std::map<int, int> Columns::growths(double factor) const {
  std::map<int, int> columns;
  std::map<int, int> others;
  int rest = window_.width() - windowWidth_;
  for (const Noted& noted : noted_) {
    if (!noted.panel) continue;
    if (noted.panel->isNarrow()) {
      columns[noted.edge] = qRound(noted.width * (factor - 1));
    } else {
      others[noted.edge] = 0;
    }
  }
  for (const auto& [edge, growth] : columns) rest -= growth;
  for (auto& [edge, growth] : others) growth = rest / static_cast<int>(others.size());
  columns.merge(others);
  return columns;
}

void Columns::restore(double factor) {
  const std::map<int, int> growth = growths(factor);
  QList<QDockWidget*> panels;
  QList<int> widths;
  for (const Noted& noted : std::exchange(noted_, {})) {
    if (!noted.panel) continue;
    panels.append(noted.panel);
    widths.append(std::max(noted.width + growth.at(noted.edge), 1));
  }
  if (panels.isEmpty()) return;
  window_.layout()->activate();
  window_.resizeDocks(panels, widths, Qt::Horizontal);
}

}  // namespace vesk
