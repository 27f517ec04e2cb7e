#pragma once

#include <QTableView>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/info/PortsModel.h"

namespace orvuilib {

/// The ports of a node, as a table as high as its lines, with columns as wide as what is in them.
class ORVUI_EXPORT PortTable final : public QTableView {
 public:
  explicit PortTable(QWidget* parent);

  PortsModel& ports() { return *ports_; }

  /// Shows what the graph has now.
  void refresh();

  /// The port of the current line; null when there is none.
  orvlib::PortRef currentPort() const { return ports_->port(currentIndex().row()); }

  /// Another line is the current one, or none.
  std::function<void()> currentMoved;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns();

  PortsModel* ports_;
};

}  // namespace orvuilib
