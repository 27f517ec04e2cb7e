#pragma once

#include <QScrollArea>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

class QLabel;
class QVBoxLayout;

namespace orvuilib {

class InfoHeader;
class MetadataTable;
class PortTable;
class ReadOnlyNote;
class StateBoxes;
class WatchView;

/// What one of some nodes is: type, path, description, states, ports and their metadata, its own
/// metadata, watch points. Two buttons lead to the others.
class ORVUI_EXPORT InfoPanel final : public QScrollArea {
 public:
  explicit InfoPanel(QWidget* parent);

  /// All of the nodes are in graphs. The node that is shown stays when it is among them.
  void showNodes(const std::vector<orvlib::NodeRef>& nodes);

  /// The nodes have changed as the bits tell (see `ChangeBits`); without any bit, others of their
  /// graphs, which may have led to new records.
  void follow(unsigned char bits);

  /// Null when there is none.
  const orvlib::NodeObject* node() const { return node_.get(); }

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void makeSections(QVBoxLayout& layout);
  QLabel* addSection(QVBoxLayout& layout, const char* title);

  /// Passes on what the part tells.
  template <class Part>
  void tellOf(Part& part);

  int placeOfNode() const;
  void showNode(const orvlib::NodeRef& node);
  void showPortMetadata();
  void turn(int by);
  void refresh();
  void refreshNote();
  void placeNote();
  void refreshWatches();
  void makeWatches(const std::vector<orvlib::PortRef>& watched);

  std::vector<orvlib::NodeRef> nodes_;
  orvlib::NodeRef node_;
  QWidget* page_;
  QLabel* blank_;
  ReadOnlyNote* readOnly_;
  InfoHeader* header_;
  StateBoxes* states_;
  PortTable* ports_;
  QLabel* portTitle_ = nullptr;
  MetadataTable* portMetadata_;
  MetadataTable* nodeMetadata_;
  QLabel* compoundTitle_ = nullptr;
  MetadataTable* compoundMetadata_;
  QLabel* watchTitle_ = nullptr;
  QVBoxLayout* watchLayout_ = nullptr;
  std::vector<WatchView*> watches_;
};

}  // namespace orvuilib
