#include "standalone/workspace/NodeView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "standalone/workspace/NodeModel.h"
#include "standalone/workspace/Theme.h"

namespace vesk {

NodeView::NodeView(NodeModel& model) {
  setModel(&model);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(EditKeyPressed);
  setFrameShape(NoFrame);
  setContextMenuPolicy(Qt::CustomContextMenu);
  setAccessibleName("Nodes of the scene");
  header()->setSectionsMovable(false);
  header()->setHighlightSections(false);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(NodeModel::Type, QHeaderView::Stretch);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
}

void NodeView::fitColumns() {
  header()->resizeSection(NodeModel::Name, std::max(viewport()->width() * 3 / 5, 1));
}

void NodeView::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  fitColumns();
}

std::vector<int> NodeView::selectedRowNumbers() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

/// Neighbouring rows make one range: thousands of ranges would be slow.
void NodeView::showSelection(const std::vector<int>& rows) {
  if (rows == selectedRowNumbers()) return;
  QItemSelection selection;
  for (std::size_t i = 0; i < rows.size();) {
    std::size_t end = i + 1;
    while (end < rows.size() && rows[end] == rows[end - 1] + 1) ++end;
    selection.append(QItemSelectionRange(model()->index(rows[i], 0),
                                         model()->index(rows[end - 1], NodeModel::Type)));
    i = end;
  }
  showing_ = true;
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  if (rows.size() == 1) {
    selectionModel()->setCurrentIndex(model()->index(rows[0], 0), QItemSelectionModel::NoUpdate);
    scrollTo(model()->index(rows[0], 0));
  }
  showing_ = false;
}

void NodeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  if (showing_) return;
  pending_ = true;
  if (!pressed_) tellSelection();
}

void NodeView::tellSelection() {
  if (std::exchange(pending_, false) && selectionMade) selectionMade();
}

void NodeView::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  QTreeView::mousePressEvent(event);
}

void NodeView::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  pressed_ = false;
  tellSelection();
}

void NodeView::keyPressEvent(QKeyEvent* event) {
  const bool deletes = event->key() == Qt::Key_Delete && state() != EditingState;
  if (deletes && deleteAsked) {
    deleteAsked();
  } else {
    QTreeView::keyPressEvent(event);
  }
}

void NodeView::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(theme::kDimText);
  const int margin = theme::scaled(16);
  painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   Qt::AlignCenter | Qt::TextWordWrap, emptyText);
}

}  // namespace vesk
