#include "standalone/workspace/UndoModel.h"

#include <QFont>

#include "standalone/host/engine/UndoQueue.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/workspace/Theme.h"

namespace vesk {

UndoModel::UndoModel(const UndoQueue& queue) : queue_(queue) { refresh(); }

void UndoModel::refresh() {
  const int wanted = static_cast<int>(queue_.stepCount()) + 1;
  if (wanted < rows_) {
    beginRemoveRows({}, wanted, rows_ - 1);
    rows_ = wanted;
    endRemoveRows();
  } else if (wanted > rows_) {
    beginInsertRows({}, rows_, wanted - 1);
    rows_ = wanted;
    endInsertRows();
  }
  emit dataChanged(index(0), index(rows_ - 1));
}

int UndoModel::currentRow() const { return static_cast<int>(queue_.doneCount()); }

int UndoModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

/// The queue may have lost steps since the last refresh.
std::string UndoModel::stepName(int row) const {
  const auto step = static_cast<std::size_t>(row) - 1;
  return step < queue_.stepCount() ? queue_.stepName(step) : "";
}

QVariant UndoModel::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  const std::string name = row == 0 ? "Beginning" : stepName(row);
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(name.empty() ? "(no name)" : shortened(name)).simplified();
    case Qt::ToolTipRole:
      return QString::fromStdString(shortened(name)) +
             (row > currentRow() ? "\nUndone. Click to redo up to here."
                                 : "\nClick to go back to the state after this step.");
    case Qt::ForegroundRole:
      return row > currentRow() || row == 0 ? QVariant(theme::kDimText) : QVariant();
    case Qt::FontRole: {
      QFont font = theme::textFont();
      font.setItalic(row > currentRow());
      return font;
    }
    default:
      return {};
  }
}

}  // namespace vesk
