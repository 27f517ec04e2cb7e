#pragma once

#include <QSet>
#include <QTimer>
#include <functional>
#include <span>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/ContainerObject.h"

namespace orvuilib {

/// Tells of changes of some nodes and of what is around them, soon after they happened: once for
/// all that happened until then.
class ORVUI_EXPORT GraphFollower final : private orvlib::ChangeListener {
 public:
  /// `changed` gets the bits of all that changed (see `ChangeBits`): of names and content anywhere
  /// in the graphs, of metadata of compounds, of all else only when it is of the nodes followed. It
  /// may follow other nodes.
  explicit GraphFollower(std::function<void(unsigned char)> changed);
  GraphFollower(const GraphFollower&) = delete;
  GraphFollower& operator=(const GraphFollower&) = delete;
  ~GraphFollower() override;

  /// Follows these nodes and no others; also those that are in no graph now, once they are in one
  /// of the graphs that were followed for other nodes.
  void follow(std::span<const orvlib::NodeRef> nodes);

  /// As if all of these had changed.
  void note(unsigned char bits);

  /// Also tells of any other change of the graphs, with no bit when there is none else.
  void followAll(bool all) { all_ = all; }

 private:
  void graphChanged(orvlib::ContainerObject& container,
                    std::span<const orvlib::NodeChange> changes) override;
  void graphGoes(orvlib::ContainerObject& container) override;
  void tell();
  void release();

  std::function<void(unsigned char)> changed_;
  QTimer timer_;
  unsigned char bits_ = 0;
  bool all_ = false;
  QSet<const orvlib::NodeObject*> nodes_;
  std::vector<orvlib::CoreRef> graphs_;
};

}  // namespace orvuilib
