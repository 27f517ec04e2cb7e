#include "standalone/widgets/parameters/RowView.h"

#include <QApplication>
#include <QScrollBar>
#include <algorithm>

#include "standalone/widgets/parameters/GroupHeader.h"
#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

RowView::RowView(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::TabFocus);
  viewport()->setBackgroundRole(QPalette::Window);
  viewport()->setAutoFillBackground(true);
}

void RowView::addGroup(const RowGroup& group) {
  const std::size_t heading = lines_.size();
  lines_.push_back({&group, nullptr, 0, 0});
  if (filter_.isEmpty() && !ParameterPreferences::isOpen(group.key)) return;
  for (const ParameterRow& row : group.rows) {
    if (filter_.isEmpty() || filter_.passes(row)) lines_.push_back({&group, &row, 0, 0});
  }
  const bool hasRows = lines_.size() > heading + 1;
  if (!hasRows && !filter_.isEmpty()) lines_.pop_back();
}

void RowView::makeLines() {
  lines_.clear();
  for (const RowGroup& group : groups_) addGroup(group);
  measure();
}

void RowView::measure() {
  const int width = viewport()->width();
  int top = 0;
  for (Line& line : lines_) {
    line.top = top;
    line.height =
        line.row ? RowWidget::heightOf(*line.row, *this, width, openRows_.contains(line.row->key))
                 : GroupHeader::heightOf(*this);
    top += line.height;
  }
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(style::lineHeight(*this));
  verticalScrollBar()->setRange(0, std::max(0, totalHeight() - viewport()->height()));
  place();
}

int RowView::totalHeight() const {
  return lines_.empty() ? 0 : lines_.back().top + lines_.back().height + style::gap(*this);
}

/// A widget keeps pointers to no row: each gets the row that now has its key.
void RowView::setGroups(std::vector<RowGroup> groups) {
  // Lines point to the groups, and are asked for when a widget with the focus is hidden.
  lines_.clear();
  groups_ = std::move(groups);
  QHash<QString, const ParameterRow*> rows;
  for (const RowGroup& group : groups_) {
    for (const ParameterRow& row : group.rows) rows.insert(row.key, &row);
  }
  for (auto at = widgets_.begin(); at != widgets_.end();) {
    auto* widget = dynamic_cast<RowWidget*>(at.value());
    const ParameterRow* row = rows.value(at.key());
    const bool fits = widget && row && widget->row().kind == row->kind;
    if (fits) {
      widget->setRow(*row);
      ++at;
    } else {
      at.value()->hide();
      at.value()->deleteLater();
      at = widgets_.erase(at);
    }
  }
  makeLines();
}

void RowView::setFilter(const QString& text) {
  const RowFilter filter(text);
  if (filter == filter_) return;
  filter_ = filter;
  makeLines();
}

void RowView::refresh() {
  for (QWidget* widget : std::as_const(widgets_)) {
    if (auto* row = dynamic_cast<RowWidget*>(widget)) row->refresh();
  }
}

bool RowView::isLive() const {
  return std::ranges::any_of(widgets_, [](const QWidget* widget) {
    const auto* row = dynamic_cast<const RowWidget*>(widget);
    return row && row->isLive();
  });
}

std::size_t RowView::firstVisible() const {
  const int offset = verticalScrollBar()->value();
  const auto at = std::ranges::partition_point(
      lines_, [offset](const Line& line) { return line.top + line.height <= offset; });
  return static_cast<std::size_t>(at - lines_.begin());
}

void RowView::place() {
  // Placing may show or hide the scroll bar, which resizes the view.
  if (placing_) return;
  placing_ = true;
  const int offset = verticalScrollBar()->value();
  const int width = viewport()->width();
  QSet<QString> seen;
  for (std::size_t i = firstVisible(); i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    if (line.top >= offset + viewport()->height()) break;
    seen.insert(line.key());
    QWidget* widget = widgetOf(line);
    widget->setGeometry(0, line.top - offset, width, line.height);
    widget->show();
  }
  dropUnseen(seen);
  placing_ = false;
}

QWidget* RowView::widgetOf(const Line& line) {
  QWidget*& widget = widgets_[line.key()];
  if (!widget) widget = line.row ? makeRow(line) : makeHeader(line);
  if (!line.row) {
    const bool open = !filter_.isEmpty() || ParameterPreferences::isOpen(line.group->key);
    static_cast<GroupHeader*>(widget)->showGroup(line.group->title, open);
  }
  return widget;
}

QWidget* RowView::makeRow(const Line& line) {
  RowWidget* widget = RowWidget::create(*line.row, viewport());
  const QString key = line.row->key;
  widget->setOpen(openRows_.contains(key));
  widget->openAsked = [this, key](bool open) { setOpen(key, open); };
  widget->edited = [this] {
    if (edited) edited();
  };
  widget->refused = [this](const QString& reason) {
    if (refused) refused(reason);
  };
  return widget;
}

QWidget* RowView::makeHeader(const Line& line) {
  auto* header = new GroupHeader(viewport());
  connect(header, &QAbstractButton::clicked, this,
          [this, key = line.group->key] { setGroupOpen(key, !ParameterPreferences::isOpen(key)); });
  return header;
}

/// Such as a picker or a menu.
bool RowView::hasOpenWindow(const QWidget& row) {
  return std::ranges::any_of(row.findChildren<QWidget*>(), [](const QWidget* widget) {
    return widget->isWindow() && widget->isVisible();
  });
}

/// What a user is at work with stays, out of sight.
bool RowView::mustStay(const QWidget& widget) const {
  const auto* row = dynamic_cast<const RowWidget*>(&widget);
  if (row && (row->isLive() || hasOpenWindow(*row))) return true;
  const QWidget* focused = QApplication::focusWidget();
  return focused && widget.isAncestorOf(focused);
}

bool RowView::isKnown(const QString& key) const {
  return std::ranges::any_of(lines_, [&key](const Line& line) { return line.key() == key; });
}

void RowView::dropUnseen(const QSet<QString>& seen) {
  for (auto at = widgets_.begin(); at != widgets_.end();) {
    QWidget* widget = at.value();
    if (seen.contains(at.key())) {
      ++at;
    } else if (mustStay(*widget) && isKnown(at.key())) {
      widget->move(0, -widget->height() - viewport()->height());
      ++at;
    } else {
      widget->hide();
      widget->deleteLater();
      at = widgets_.erase(at);
    }
  }
}

void RowView::setOpen(const QString& row, bool open) {
  if (open) {
    openRows_.insert(row);
  } else {
    openRows_.remove(row);
  }
  if (auto* widget = dynamic_cast<RowWidget*>(widgets_.value(row))) widget->setOpen(open);
  measure();
}

void RowView::setGroupOpen(const QString& group, bool open) {
  ParameterPreferences::setOpen(group, open);
  makeLines();
}

RowWidget* RowView::rowOf(const QString& label) {
  for (const Line& line : lines_) {
    if (!line.row || line.row->label != label) continue;
    showLine(line);
    return static_cast<RowWidget*>(widgetOf(line));
  }
  return nullptr;
}

void RowView::showLine(const Line& line) {
  QScrollBar& bar = *verticalScrollBar();
  const int bottom = line.top + line.height;
  if (line.top < bar.value()) bar.setValue(line.top);
  if (bottom > bar.value() + viewport()->height()) bar.setValue(bottom - viewport()->height());
  place();
}

void RowView::resizeEvent(QResizeEvent*) { measure(); }

void RowView::scrollContentsBy(int, int) { place(); }

bool RowView::event(QEvent* event) {
  const bool done = QAbstractScrollArea::event(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) measure();
  return done;
}

}  // namespace orvuilib
