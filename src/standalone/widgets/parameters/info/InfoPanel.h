#pragma once

#include <QScrollArea>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

class QCheckBox;
class QLabel;
class QTableView;
class QToolButton;
class QVBoxLayout;

namespace orvuilib {

class MetadataTable;
class PortsModel;
class WatchView;

/// What one of some nodes is: type, path, description, states, ports, metadata, watch points. Two
/// buttons lead to the others.
class ORVUI_EXPORT InfoPanel final : public QScrollArea {
 public:
  explicit InfoPanel(QWidget* parent);

  /// All of the nodes are in graphs. The node that is shown stays when it is among them.
  void showNodes(const std::vector<orvlib::NodeRef>& nodes);

  /// The nodes, or others of their graphs, have changed.
  void follow(unsigned char bits);

  /// Null when there is none.
  const orvlib::NodeObject* node() const { return node_.get(); }

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

 private:
  void makeHeader(QVBoxLayout& layout);
  void makeSections(QVBoxLayout& layout);
  QLabel* makeText(const char* name);
  QLabel* addSection(QVBoxLayout& layout, const char* title);
  void showNode(const orvlib::NodeRef& node);
  void turn(int by);
  void makeFlagBoxes();
  void setFlag(char key, QCheckBox& box);
  void refresh();
  void refreshTexts();
  void refreshFlags();
  void refreshWatches();
  void tellEdited();

  std::vector<orvlib::NodeRef> nodes_;
  orvlib::NodeRef node_;
  QWidget* page_;
  QLabel* blank_;
  QLabel* readOnly_;
  QLabel* place_;
  QToolButton* previous_;
  QToolButton* next_;
  QLabel* name_;
  QLabel* type_;
  QLabel* typeName_;
  QLabel* path_;
  QLabel* origin_;
  QLabel* description_;
  QVBoxLayout* flagLayout_ = nullptr;
  std::vector<QCheckBox*> flagBoxes_;
  PortsModel* ports_;
  QTableView* portTable_;
  MetadataTable* nodeMetadata_;
  QLabel* compoundTitle_ = nullptr;
  MetadataTable* compoundMetadata_;
  QLabel* watchTitle_ = nullptr;
  QVBoxLayout* watchLayout_ = nullptr;
  std::vector<WatchView*> watches_;
};

}  // namespace orvuilib
