#pragma once

#include <QAbstractListModel>
#include <string>

namespace vesk {

class UndoQueue;

/// The steps of the undo queue as rows: the state before the first one, the steps that are done,
/// oldest first, and those that are undone.
class UndoModel final : public QAbstractListModel {
 public:
  /// `queue` outlives the model.
  explicit UndoModel(const UndoQueue& queue);

  /// Follows the queue.
  void refresh();

  /// The row of the state that the scene is in: as many steps are done.
  int currentRow() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::string stepName(int row) const;

  const UndoQueue& queue_;
  int rows_ = 1;
};

}  // namespace vesk
