#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

class QLabel;
class QLineEdit;

namespace orvuilib {

class ReadOnlyNote;
class RowView;

/// The values of the inputs of some nodes, with a field that searches among them.
class ORVUI_EXPORT ParameterPanel final : public QWidget {
 public:
  explicit ParameterPanel(QWidget* parent);

  /// All of the nodes are in graphs.
  void showNodes(const std::vector<orvlib::NodeRef>& nodes);

  /// The nodes have changed as the bits tell (see `ChangeBits`).
  void follow(unsigned char bits);

  RowView& rows() const { return *rows_; }

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void makeRowsAnew();
  void showNotes();
  QString readOnlyText() const;

  std::vector<orvlib::NodeRef> nodes_;
  std::size_t fingerprint_ = 0;
  QLineEdit* search_;
  QLabel* blank_;
  ReadOnlyNote* readOnly_;
  RowView* rows_;
};

}  // namespace orvuilib
