#pragma once

#include <QToolButton>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/RowState.h"

namespace orvuilib {

/// The name of what a port gets its value from; of several, their number. A click selects the node
/// of the source, after a choice when there are several.
class ORVUI_EXPORT SourceLink final : public QToolButton {
 public:
  explicit SourceLink(QWidget* parent);

  void showSources(const std::vector<orvlib::PortRef>& sources);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void follow();

  std::vector<orvlib::PortRef> sources_;
};

}  // namespace orvuilib
