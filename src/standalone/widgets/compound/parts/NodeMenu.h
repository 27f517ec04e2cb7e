#pragma once

#include "standalone/widgets/compound/input/Shortcuts.h"
#include "standalone/widgets/compound/parts/NodeCatalogue.h"
#include "standalone/widgets/compound/parts/SearchList.h"

namespace orvuilib {

/// The searching menu of what can be added. Where it is opened by a click it also offers what else
/// can be done there.
class NodeMenu final : public SearchList {
  Q_OBJECT

 public:
  NodeMenu(const Theme& theme, QWidget* parent);

  /// Offers what the graph knows; for a port, what can be connected to it; for a wire, what can be
  /// put into it. `at` is where the list goes; what is chosen goes to `place`, which is of the
  /// scene.
  void offer(const orvlib::GraphCore& core, const edits::NodePlace& place, Place at,
             const std::vector<Action>& actions = {});

  /// Where what is chosen goes.
  edits::NodePlace place() const { return {position_, connectTo_.get(), wireTo_.get()}; }

 signals:
  void picked(const orvuilib::edits::NewNode& what);
  void actionPicked(orvuilib::Action action);

 protected:
  std::vector<SearchLine> search(const QString& typed) override;
  void chosen(int index) override;

 private:
  const Theme& theme_;
  std::vector<CatalogueEntry> entries_;
  std::vector<const CatalogueEntry*> shown_;
  std::vector<Action> actions_;
  std::vector<Action> shownActions_;
  int firstAction_ = 0;  ///< which line it is: before the nodes, or when something is typed behind
  QPointF position_;
  orvlib::PortRef connectTo_;
  orvlib::PortRef wireTo_;
  QString hint_;
};

}  // namespace orvuilib
