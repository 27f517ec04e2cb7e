#include "standalone/workspace/Outliner.h"

#include <QEvent>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/workspace/NodeView.h"
#include "standalone/workspace/Theme.h"
#include "standalone/workspace/Workspace.h"

namespace vesk {

Outliner::Outliner(HostSession& session, std::vector<WindowOptions::NodeOpener> openers)
    : session_(session),
      openers_(std::move(openers)),
      model_(session.scene()),
      top_(new QHBoxLayout),
      filter_(new QLineEdit),
      view_(new NodeView(model_)),
      refresh_([this] { refresh(); }) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  top_->addWidget(filter_);
  layout->addLayout(top_);
  applySizes();
  layout->addWidget(view_, 1);
  setFocusProxy(view_);
  filter_->setPlaceholderText("Find nodes");
  filter_->setClearButtonEnabled(true);
  filter_->setToolTip("Shows only nodes whose name or type has this text");
  connect(filter_, &QLineEdit::textChanged, this, [this] { refresh(); });
  view_->selectionMade = [this] { selectInScene(); };
  view_->deleteAsked = [this] { deleteSelected(); };
  connect(view_, &QTreeView::doubleClicked, this, [this](const QModelIndex& i) { open(i); });
  connect(view_, &QTreeView::customContextMenuRequested, this,
          [this](const QPoint& place) { showMenu(place); });
  const auto request = [this] { refresh_.request(); };
  observations_.push_back(session_.scene().changed().add(request));
  observations_.push_back(session_.scene().selection().changed().add(request));
  refresh();
}

/// The view goes ahead of its model.
Outliner::~Outliner() { delete view_; }

void Outliner::applySizes() {
  const int gap = theme::scaled(5);
  top_->setContentsMargins(gap, gap, gap, gap);
  filter_->setTextMargins(gap, 0, gap, 0);
}

void Outliner::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange) applySizes();
}

void Outliner::refresh() {
  view_->setRefreshing(true);
  model_.setFilter(filter_->text());
  view_->setRefreshing(false);
  view_->emptyText = session_.scene().size() == 0
                         ? "The scene is empty.\nRight-click to make a node."
                         : "No node fits.";
  showSceneSelection();
}

void Outliner::showSceneSelection() { view_->showSelection(model_.selectedRows()); }

std::string Outliner::selectedNames() const {
  std::string names;
  for (const int row : view_->selectedRowNumbers())
    names += " " + vesk::quoted(model_.node(row)->name());
  return names;
}

void Outliner::selectInScene() {
  const std::vector<int> rows = view_->selectedRowNumbers();
  if (rows == model_.selectedRows() && rows.size() == session_.scene().selection().size()) return;
  if (rows.empty()) {
    runLine("select -clear");
  } else {
    const bool all = rows.size() > 1 && rows.size() == session_.scene().size();
    runLine("select" + (all ? " \"*\"" : selectedNames()));
  }
}

void Outliner::deleteSelected() {
  const std::string names = selectedNames();
  if (!names.empty()) runLine("delete" + names);
}

void Outliner::open(const QModelIndex& index) {
  const SceneNodePtr node = model_.node(index.row());
  const auto opener = std::ranges::find(openers_, node->type(), &WindowOptions::NodeOpener::type);
  if (opener != openers_.end()) runLine(opener->line + " " + vesk::quoted(node->name()));
}

void Outliner::showMenu(const QPoint& place) {
  const QModelIndex index = view_->indexAt(place);
  QMenu menu;
  if (index.isValid()) {
    const std::string& type = model_.node(index.row())->type();
    if (std::ranges::count(openers_, type, &WindowOptions::NodeOpener::type) > 0) {
      menu.addAction("Open", this, [this, index] { open(index); });
    }
    menu.addAction("Rename", this,
                   [this, index] { view_->edit(index.siblingAtColumn(NodeModel::Name)); });
    menu.addAction("Delete", this, [this] { deleteSelected(); });
    menu.addSeparator();
  }
  addCreateEntries(*menu.addMenu("Create"));
  menu.exec(view_->viewport()->mapToGlobal(place));
}

void Outliner::addCreateEntries(QMenu& menu) {
  for (const std::string& type : session_.scene().types().names()) {
    menu.addAction(QString::fromStdString(type).replace('&', "&&"),
                   [type] { runLine("createNode " + vesk::quoted(type)); });
  }
}

}  // namespace vesk
