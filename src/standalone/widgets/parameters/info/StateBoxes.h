#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

class QCheckBox;

namespace orvuilib {

/// A check box for each state of a node.
class ORVUI_EXPORT StateBoxes final : public QWidget {
 public:
  explicit StateBoxes(QWidget* parent);

  /// Null shows nothing.
  void showNode(const orvlib::NodeRef& node);

  /// Shows what the graph has now.
  void refresh();

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 private:
  void makeBoxes();
  void set(unsigned int index, bool on);

  orvlib::NodeRef node_;
  std::vector<QCheckBox*> boxes_;
};

}  // namespace orvuilib
