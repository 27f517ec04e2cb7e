#pragma once

#include <QObject>
#include <vector>

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// What was last selected in any compound editor of the program. Nodes stay in it when they leave
/// their graph: whoever shows them passes over those that are in none.
class ORVUI_EXPORT SelectionModel final : public QObject {
  Q_OBJECT

 public:
  using Nodes = std::vector<ORV_v1::AddRefWrapper<ORV_v1::Node>>;

  static SelectionModel& instance();

  /// Replaces the selection, in the order given; null handles are left out. Nothing happens when it
  /// is the same as before.
  void select(const Nodes& nodes);

  const Nodes& nodes() const { return nodes_; }

 signals:
  void changed();

 private:
  SelectionModel() = default;

  Nodes nodes_;
};

}  // namespace orvuilib
