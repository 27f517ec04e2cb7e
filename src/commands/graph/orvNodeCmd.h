#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/flagReading.h"
#include "plugin/orvMetadataCmd.h"

/// The command `orvNode`: edits and queries one node: its ports, state flags and metadata.
///
/// A line is read once, in `doIt`, and nothing changes until `redoIt`, which carries out what was
/// recorded. The node is found again by its path each time.
class orvNodeCmd : public orvMetadataCmd, public KPxCommand {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;
  bool isUndoable() const override;

 protected:
  /// One use of `-setStateFlag`.
  struct StateFlagChange {
    char flagKey = 0;
    std::uint32_t oldState = 0;  ///< 0 also for a key that the node lacks
    std::uint32_t newState = 0;
  };

  KString nodePath;
  KString portName;
  KString metaDataName;
  std::vector<std::string> connectedToPorts;
  bool queryTypeName = false;
  bool filterConnected = false;
  bool connectedValue = false;
  bool listConnectedNodes = false;
  bool listPorts = false;
  bool queryPortDefaultValues = false;
  bool queryPortDataType = false;
  bool queryPortMetaDataValue = false;
  bool listPortChildren = false;
  bool hasNodeEdits = false;
  ORV_v1::ModifyNodePortCommand portCommand;
  std::vector<StateFlagChange> stateFlagChanges;

 private:
  using NodeHandle = ORV_v1::AddRefWrapper<ORV_v1::Node>;
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  /// What the steps of a parse share.
  struct Parse : FlagReading {
    const NodeHandle& node;
  };

  /// How one flag of the line is read.
  struct ParseStep {
    const char* flag;
    /// False when the flag is refused, and the parse stops. Null for a flag that only sets its
    /// field.
    bool (orvNodeCmd::*read)(const Parse& parse);
    /// Set once the flag has been read.
    bool orvNodeCmd::*sets;
  };

  /// One stage of the queries. False ends the command with a failure, and keeps what the stages
  /// before it gave.
  struct QueryStage {
    bool (orvNodeCmd::*isDue)() const;
    bool (orvNodeCmd::*run)(ORV_v1::Node& node);
  };

  // Each in the order in which it is walked, which is part of the behaviour.
  static const ParseStep kParseSteps[];
  static const QueryStage kQueryStages[];

  /// The node that the line names; null without one. The user is told of a container that is not
  /// there.
  NodeHandle findNode() const;

  /// The port of that name below the node, a compound's port seen from outside; null without one.
  PortHandle findPort(const KString& name, ORV_v1::Container::ESearchIOType ioType) const;

  // orvNodeParsing.cpp
  KStatus parseArgs(const KArgList& args);
  bool parseFlags(const KArgDatabase& db, const NodeHandle& node);
  bool parseListConnectedNodes(const Parse& parse);
  bool parseListPorts(const Parse& parse);
  bool parseSetPortDefaultValues(const Parse& parse);
  bool parseResetPortDefaultValues(const Parse& parse);
  bool parseSetPortDataType(const Parse& parse);
  bool parseCreateInputPort(const Parse& parse);
  bool parseCreateOutputPort(const Parse& parse);
  bool parseCreatePort(const Parse& parse, ORV_v1::PortIOType direction);
  bool parseDeletePort(const Parse& parse);
  bool parseQueriedPort(const Parse& parse);
  bool parseSetPortMetaDataValue(const Parse& parse);
  bool parseQueryPortMetaDataValue(const Parse& parse);
  bool parseSetStateFlag(const Parse& parse);

  // orvNodeCmd.cpp
  ORV_v1::ChangeBracket openBracket(ORV_v1::Node& node) const;
  bool runEdits(ORV_v1::Node& node);
  static void setState(ORV_v1::Node& node, char key, std::uint32_t state);

  // orvNodeQueries.cpp
  bool runQueries(ORV_v1::Node& node);
  bool queriesConnectedNodes() const { return listConnectedNodes; }
  bool queriesPorts() const { return listPorts; }
  bool queriesDefaultValues() const { return queryPortDefaultValues; }
  bool queriesOfAPort() const {
    return queryPortMetaDataValue || listPortChildren || queryPortDataType;
  }
  bool queriesTypeName() const { return queryTypeName; }
  bool always() const { return true; }
  bool appendConnectedNodes(ORV_v1::Node& node);
  bool appendPorts(ORV_v1::Node& node);
  bool answerDefaultValues(ORV_v1::Node& node);
  bool answerPort(ORV_v1::Node& node);
  bool answerTypeName(ORV_v1::Node& node);
  bool answerMetadata(ORV_v1::Node& node);
  void addEntries(ORV_v1::Port& port, std::set<std::string>& entries) const;
};
