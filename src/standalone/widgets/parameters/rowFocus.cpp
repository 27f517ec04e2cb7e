// The way of the Tab key through the rows, most of which have no widgets yet.

#include <QApplication>
#include <QFocusEvent>

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
    if (focused && widget && (widget == focused || widget->isAncestorOf(focused))) return i;
  }
  return lines_.size();
}

bool RowView::focusIn(std::size_t index, bool first) {
  const Line& line = lines_[index];
  showLine(line);
  QWidget* widget = widgetOf(line);
  const QList<QWidget*> all = line.row ? stops(*widget) : QList<QWidget*>{widget};
  if (all.isEmpty()) return false;
  (first ? all.front() : all.back())->setFocus(first ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

bool RowView::focusFrom(std::size_t line, bool next) {
  for (std::size_t i = line; i < lines_.size(); i += next ? 1 : -1) {
    if (focusIn(i, next)) return true;
  }
  return false;
}

/// The order of what is around is that in which it was made, which rows do not keep to.
bool RowView::focusAround(bool next) {
  QWidget* at = this;
  const auto follow = [&] { return next ? at->nextInFocusChain() : at->previousInFocusChain(); };
  for (at = follow(); at && at != this; at = follow()) {
    const bool takes = (at->focusPolicy() & Qt::TabFocus) && at->isEnabled() && at->isVisible();
    if (!takes || isAncestorOf(at)) continue;
    at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}

bool RowView::focusNextPrevChild(bool next) {
  const std::size_t from = focusedLine();
  if (from == lines_.size()) return focusAround(next);
  const QList<QWidget*> own = stops(*widgetOf(lines_[from]));
  const qsizetype stop = stopWithFocus(own) + (next ? 1 : -1);
  if (stop >= 0 && stop < own.size() && lines_[from].row) {
    own[stop]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return focusFrom(from + (next ? 1 : -1), next) || focusAround(next);
}

/// The view has the focus only on its way to a line.
void RowView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  const bool backwards = event->reason() == Qt::BacktabFocusReason;
  if (!backwards && event->reason() != Qt::TabFocusReason) return;
  if (!lines_.empty()) focusFrom(backwards ? lines_.size() - 1 : 0, !backwards);
}

}  // namespace orvuilib
