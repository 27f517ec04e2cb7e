// The way of the Tab key through the rows, most of which have no widgets yet.

#include <QApplication>

#include "standalone/widgets/parameters/RowView.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {
namespace {

bool takesTab(const QWidget& widget, const QWidget& row) {
  const bool isPart = !dynamic_cast<const QAbstractScrollArea*>(widget.parentWidget());
  return isPart && (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() &&
         widget.isVisibleTo(&row) && !widget.isWindow();
}

/// What the Tab key goes to in a row, in the order in which it was made.
QList<QWidget*> stops(const QWidget& row) {
  QList<QWidget*> stops;
  for (QWidget* widget : row.findChildren<QWidget*>()) {
    if (takesTab(*widget, row)) stops.append(widget);
  }
  return stops;
}

qsizetype stopWithFocus(const QList<QWidget*>& stops) {
  const QWidget* focused = QApplication::focusWidget();
  for (qsizetype i = 0; i < stops.size(); ++i) {
    if (stops[i] == focused || stops[i]->isAncestorOf(focused)) return i;
  }
  return -1;
}

}  // namespace

std::size_t RowView::focusedLine() const {
  const QWidget* focused = QApplication::focusWidget();
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const QWidget* widget = widgets_.value(lines_[i].key());
    if (focused && widget && widget->isAncestorOf(focused)) return i;
  }
  return lines_.size();
}

bool RowView::focusIn(std::size_t index, bool first) {
  const Line& line = lines_[index];
  if (!line.row) return false;
  showLine(line);
  const QList<QWidget*> all = stops(*widgetOf(line));
  if (all.isEmpty()) return false;
  (first ? all.front() : all.back())->setFocus(first ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

bool RowView::focusNextPrevChild(bool next) {
  const std::size_t from = focusedLine();
  if (from == lines_.size()) return QAbstractScrollArea::focusNextPrevChild(next);
  const QList<QWidget*> own = stops(*widgetOf(lines_[from]));
  const qsizetype stop = stopWithFocus(own) + (next ? 1 : -1);
  if (stop >= 0 && stop < own.size()) {
    own[stop]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  for (std::size_t i = from + (next ? 1 : -1); i < lines_.size(); i += next ? 1 : -1) {
    if (focusIn(i, next)) return true;
  }
  return QAbstractScrollArea::focusNextPrevChild(next);
}

}  // namespace orvuilib
