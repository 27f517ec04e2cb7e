#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "standalone/host/scene/SceneNode.h"

namespace vesk {

class Scene;

/// The nodes of the scene as rows, in their order: name and type. A name can be edited, by a line.
///
/// It shows the scene as it was at the last `refresh`, and keeps those nodes alive until the next.
class NodeModel final : public QAbstractTableModel {
 public:
  enum Column { Name, Type, kColumns };

  /// `scene` outlives the model.
  explicit NodeModel(Scene& scene);

  /// Follows the scene; rows that stay keep their place in the view.
  void refresh();

  /// Shows only nodes whose name or type has this text, in any case of letters; all when empty.
  void setFilter(const QString& text);

  const SceneNodePtr& node(int row) const { return rows_[row]; }

  /// The rows of the nodes that are selected in the scene, in ascending order.
  std::vector<int> selectedRows() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  std::vector<SceneNodePtr> wantedRows() const;
  bool fits(const SceneNode& node) const;
  void replaceRows(std::size_t first, std::size_t oldCount, std::vector<SceneNodePtr> rows);

  Scene& scene_;
  QString filter_;
  std::vector<SceneNodePtr> rows_;
};

}  // namespace vesk
