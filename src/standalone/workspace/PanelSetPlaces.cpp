// Where panels come to stand.

#include <QMainWindow>
#include <algorithm>

#include "standalone/workspace/PanelSet.h"
#include "standalone/workspace/Theme.h"

namespace vesk {

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
  if (panel.isOwn()) return;
  Panel* beside = nullptr;
  Panel* below = nullptr;
  for (Panel* other : panels_) {
    if (other == &panel || !other || !other->isShown() || other->isFloating()) continue;
    if (other->isOwn()) {
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

}  // namespace vesk
