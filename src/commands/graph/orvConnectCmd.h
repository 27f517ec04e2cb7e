#pragma once

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/ConnectNodesCommand.h"
#include "platform/ORV_1_0/Port.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// The command `orvConnect`: makes or breaks one connection, or connects a list of nodes. It acts
/// in `doIt`; `redoIt` and `undoIt` replay that.
class orvConnectCmd : public KPxCommand, public orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;

  /// Always.
  bool isUndoable() const override;

 protected:
  /// The compound that brackets are opened on; empty until it was found for the first time.
  KString bracketCompoundPath;
  bool connectNodesMode = false;
  ORV_v1::ConnectNodesCommand connectNodesCommand;
  KString sourcePortPath;
  KString destinationPortPath;
  bool disconnect = false;
  bool copyMetaData = false;
  ORV_v1::ConnectCommand connectCommand;

 private:
  using CompoundHandle = ORV_v1::AddRefWrapper<ORV_v1::Compound>;
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  struct Ends {
    PortHandle source;
    PortHandle destination;
  };

  KStatus parseArgs(const KArgList& args);
  KStatus parseNodes(const KArgDatabase& db, ORV_v1::Container& container);
  KStatus parsePorts(const KArgDatabase& db);
  KStatus connectPorts();
  bool connect(ORV_v1::Container& container, const Ends& ends);

  /// False when the paths are of no such ports.
  bool findEnds(ORV_v1::Container& container, Ends& ends) const;

  /// The compound that the destination is connected in; null without one.
  CompoundHandle findBracketCompound();
  CompoundHandle findBracketCompoundOfPorts(ORV_v1::Container& container);
  ORV_v1::ChangeBracket openBracket(ORV_v1::Container& container);

  /// Runs `edit` in the bracket. `StatusFailure` when it says false, and when the graph is gone.
  template <class Edit>
  KStatus replayPorts(Edit edit);
};
