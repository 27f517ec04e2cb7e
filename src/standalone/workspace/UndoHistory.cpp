#include "standalone/workspace/UndoHistory.h"

#include <QVBoxLayout>

#include "standalone/host/engine/HostSession.h"
#include "standalone/workspace/Workspace.h"

namespace vesk {

UndoHistory::UndoHistory(HostSession& session)
    : session_(session),
      model_(session.undoQueue()),
      view_(new QListView),
      refresh_([this] { refresh(); }) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(view_);
  setFocusProxy(view_);
  view_->setModel(&model_);
  view_->setUniformItemSizes(true);
  view_->setVerticalScrollMode(QListView::ScrollPerPixel);
  view_->setFrameShape(QFrame::NoFrame);
  view_->setEditTriggers(QListView::NoEditTriggers);
  view_->setSelectionMode(QListView::SingleSelection);
  view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view_->setTextElideMode(Qt::ElideRight);
  view_->setAccessibleName("Undo history");
  connect(view_, &QListView::clicked, this, [this](const QModelIndex& i) { goTo(i.row()); });
  connect(view_, &QListView::activated, this, [this](const QModelIndex& i) { goTo(i.row()); });
  observation_ = session_.undoQueue().changed().add([this] { refresh_.request(); });
  refresh();
}

/// The view goes ahead of its model.
UndoHistory::~UndoHistory() { delete view_; }

void UndoHistory::refresh() {
  model_.refresh();
  view_->setCurrentIndex(model_.index(model_.currentRow()));
  view_->scrollTo(view_->currentIndex());
}

void UndoHistory::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  view_->scrollTo(view_->currentIndex());
}

/// One line a step, so that a journal tells the same; up to the first that fails.
void UndoHistory::goTo(int row) {
  while (row != model_.currentRow()) {
    const int before = model_.currentRow();
    if (!runLine(row < before ? "undo" : "redo") || model_.currentRow() == before) break;
  }
  refresh_.request();
}

}  // namespace vesk
