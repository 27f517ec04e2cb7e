#pragma once

#include "standalone/widgets/compound/parts/NodeCatalogue.h"
#include "standalone/widgets/compound/parts/SearchList.h"

namespace orvuilib {

/// The searching menu of what can be added.
class NodeMenu final : public SearchList {
  Q_OBJECT

 public:
  NodeMenu(const Theme& theme, QWidget* parent);

  /// Offers what the graph knows; with a port, what can be connected to it. `point` is of the
  /// parent, the place of the scene.
  void offer(const orvlib::GraphCore& core, const edits::NodePlace& place, const QPoint& point);

  /// Where what is chosen goes.
  edits::NodePlace place() const { return {position_, connectTo_.get()}; }

 signals:
  void picked(const orvuilib::edits::NewNode& what);

 protected:
  std::vector<SearchLine> search(const QString& typed) override;
  void chosen(int index) override;

 private:
  std::vector<CatalogueEntry> entries_;
  std::vector<const CatalogueEntry*> shown_;
  QPointF position_;
  orvlib::PortRef connectTo_;
};

}  // namespace orvuilib
