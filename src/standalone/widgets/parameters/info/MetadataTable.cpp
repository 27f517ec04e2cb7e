#include "standalone/widgets/parameters/info/MetadataTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QToolTip>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {
namespace {

constexpr int kMostLines = 12;

}  // namespace

void fitHeight(QTableView& table, int mostLines) {
  const int lines = std::min(table.model()->rowCount(), mostLines);
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
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), reason, this);
  };
  connect(model_, &QAbstractItemModel::modelReset, this, [this] { fitHeight(*this, kMostLines); });
  fitHeight(*this, kMostLines);
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
