#pragma once

#include <QTreeView>
#include <functional>
#include <vector>

namespace vesk {

class NodeModel;

/// The list of an outliner. It tells the wishes of its user, a selection once for each gesture, and
/// shows the selection that it is given.
class NodeView final : public QTreeView {
 public:
  /// `model` outlives the view.
  explicit NodeView(NodeModel& model);

  std::function<void()> selectionMade;
  std::function<void()> deleteAsked;

  /// What stands in the place of the rows when there are none.
  QString emptyText;

  /// Shows these rows, in ascending order, as selected, and makes no wish of it.
  void showSelection(const std::vector<int>& rows);

  /// In ascending order.
  std::vector<int> selectedRowNumbers() const;

  /// Between two calls with true and false the selection changes for a reason of the model's.
  void setRefreshing(bool refreshing) { showing_ = refreshing; }

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void tellSelection();
  void fitColumns();

  bool showing_ = false;  ///< a selection that is not the user's
  bool pressed_ = false;  ///< the gesture is not over
  bool pending_ = false;  ///< the gesture has changed the selection
};

}  // namespace vesk
