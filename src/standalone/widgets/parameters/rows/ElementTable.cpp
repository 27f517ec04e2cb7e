#include "standalone/widgets/parameters/rows/ElementTable.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/rows/ArrayModel.h"

namespace orvuilib {

ElementTable::ElementTable(ArrayModel& model, QWidget* parent) : QTableView(parent), model_(model) {
  setModel(&model);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  horizontalHeader()->setMinimumSectionSize(fontMetrics().height());
  horizontalHeader()->setHighlightSections(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(style::lineHeight(*this));
  const int line = style::lineHeight(*this);
  setIconSize({line + line / 2, line - 2 * style::gap(*this)});
  fitColumns();
  connect(&model, &QAbstractItemModel::modelReset, this, [this] { fitColumns(); });
  connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
    if (model_.hasSwatches() && index.column() == 0 && colourAsked) colourAsked(index.row());
  });
}

void ElementTable::fitColumns() {
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  if (!model_.hasSwatches()) return;
  horizontalHeader()->setSectionResizeMode(0, QHeaderView::Fixed);
  horizontalHeader()->resizeSection(0, 2 * style::lineHeight(*this));
}

bool ElementTable::takeKey(const QKeyEvent& event) {
  const bool moves = event.modifiers() == Qt::AltModifier;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (moves && moveAsked) moveAsked(event.key() == Qt::Key_Up ? -1 : 1);
      return moves;
    case Qt::Key_Insert:
      if (addAsked) addAsked();
      return true;
    case Qt::Key_Delete:
      if (removeAsked) removeAsked();
      return true;
    case Qt::Key_Space:
    case Qt::Key_F2:
      if (!model_.hasSwatches() || currentIndex().column() != 0) return false;
      if (colourAsked) colourAsked(currentIndex().row());
      return true;
    default:
      return false;
  }
}

void ElementTable::keyPressEvent(QKeyEvent* event) {
  if (!takeKey(*event)) QTableView::keyPressEvent(event);
}

}  // namespace orvuilib
