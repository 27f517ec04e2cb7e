#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/edits/EditSession.h"

namespace orvuilib {
namespace edits {

/// Two ports that are to be connected.
struct Joint {
  orvlib::PortRef source;
  orvlib::PortRef target;
};

/// Which of the two gives and which takes, when one does each and both are at one level.
ORVUI_EXPORT std::optional<Joint> jointOf(orvlib::PortObject& one, orvlib::PortObject& other);

/// Whether a wire could be made: faces and types fit, the wire is not there yet, and it would close
/// no circle that can be seen on this level. What the target has now would give way.
ORVUI_EXPORT bool canJoin(orvlib::PortObject& one, orvlib::PortObject& other);

/// `canJoin` for one port with many others: what leads to it or from it is looked at once.
class JoinTest {
 public:
  explicit JoinTest(orvlib::PortObject& port);
  bool operator()(orvlib::PortObject& other) const;

 private:
  orvlib::PortRef port_;
  QSet<const orvlib::NodeObject*> before_;  ///< of a port that gives: what values come from
  QSet<const orvlib::NodeObject*> behind_;  ///< of a port that takes
};

/// The port of the node that `port` would be connected to first; null when none fits.
orvlib::PortObject* firstFitting(orvlib::PortObject& port, orvlib::NodeObject& node);

/// Whether a node of that definition would have such a port.
bool fitsDefinition(orvlib::PortObject& port, const orvlib::NodeDescription& definition);

/// How a gesture changes the wires of a level; each is one step of undo.
ORVUI_EXPORT void makeWire(EditSession& session, const Joint& joint);
void removeWires(EditSession& session, const std::vector<Joint>& joints);

/// Takes the wire's end off and puts it to another port.
void moveWire(EditSession& session, const Joint& from, const Joint& to);

/// Whether a node that is connected to nothing could stand in the wire.
bool canInsert(const Wire& wire, orvlib::NodeObject& node);
void insertIntoWire(EditSession& session, const Wire& wire, orvlib::NodeObject& node);

/// What is to be connected when the selected nodes are gone, so that values go on to where they
/// went.
std::vector<Joint> jointsAround(const LevelScene& scene);

// Parts of other edits; they open no step. True when the graph is as it was asked for.
bool connect(EditSession& session, orvlib::PortObject& source, orvlib::PortObject& target);

/// Also when no port fits: then nothing is to be done.
bool connectToFirstFitting(EditSession& session, orvlib::PortObject& port,
                           orvlib::NodeObject& node);
bool insertNode(EditSession& session, const Joint& wire, orvlib::NodeObject& node);

}  // namespace edits
}  // namespace orvuilib
