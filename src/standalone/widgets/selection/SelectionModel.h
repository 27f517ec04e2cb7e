#pragma once

#include <QObject>
#include <vector>

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// The selection of the program. What is selected in one compound editor is selected in all that
/// show its level, and nothing else is. Nodes stay in it when they leave their graph: whoever shows
/// them passes over those that are in none.
class ORVUI_EXPORT SelectionModel final : public QObject {
  Q_OBJECT

 public:
  using Nodes = std::vector<ORV_v1::AddRefWrapper<ORV_v1::Node>>;

  static SelectionModel& instance();

  /// Replaces the selection, in the order given; null handles are left out. Nothing happens when it
  /// is the same as before.
  void select(const Nodes& nodes);

  const Nodes& nodes() const { return nodes_; }

  /// Selects one node where the user sees it: in the compound editors that show its level. When
  /// there is none, one that shows its graph goes to that level.
  void reveal(const ORV_v1::AddRefWrapper<ORV_v1::Node>& node);

 signals:
  void changed();

  /// Asks for `reveal`, of those that show the level already, or of any of the graph. Whoever does
  /// it says so; only the first goes to another level.
  void revealAsked(const ORV_v1::AddRefWrapper<ORV_v1::Node>& node, bool mayLeaveLevel,
                   bool& revealed);

 private:
  SelectionModel() = default;

  Nodes nodes_;
};

}  // namespace orvuilib
