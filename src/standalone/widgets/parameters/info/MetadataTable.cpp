#include "standalone/widgets/parameters/info/MetadataTable.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "standalone/widgets/parameters/FieldStyle.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {
namespace {

/// A table of more is scrolled in itself.
constexpr int kMostLines = 500;

}  // namespace

void fitHeight(QTableView& table) {
  const int lines = std::min(table.model()->rowCount(), kMostLines);
  const int header = table.horizontalHeader()->sizeHint().height();
  table.setFixedHeight(header + lines * table.verticalHeader()->defaultSectionSize() +
                       2 * table.frameWidth());
}

void styleTable(QTableView& table) {
  table.setTabKeyNavigation(false);
  table.setWordWrap(false);
  table.setShowGrid(false);
  table.setAlternatingRowColors(true);
  table.setSelectionMode(QAbstractItemView::SingleSelection);
  table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table.verticalHeader()->hide();
  FieldStyle::applyTo(table);
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setDefaultSectionSize(style::lineHeight(table));
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table.horizontalHeader()->setMinimumSectionSize(table.fontMetrics().height());
}

MetadataTable::MetadataTable(QWidget* parent)
    : QTableView(parent), model_(new MetadataModel(this)) {
  styleTable(*this);
  setModel(model_);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  model_->edited = [this] {
    if (edited) edited();
  };
  model_->refused = [this](const QString& reason) {
    if (refused) refused(reason);
  };
  connect(model_, &QAbstractItemModel::modelReset, this, [this] { fitHeight(*this); });
  fitHeight(*this);
}

void MetadataTable::showTarget(std::unique_ptr<MetadataTarget> target) {
  model_->show(std::move(target));
}

void MetadataTable::refresh() { model_->refresh(); }

void MetadataTable::keyPressEvent(QKeyEvent* event) {
  const bool removes = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
  if (removes && model_->canRemove(currentIndex().row())) {
    model_->remove(currentIndex().row());
  } else {
    QTableView::keyPressEvent(event);
  }
}

}  // namespace orvuilib
