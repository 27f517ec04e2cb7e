#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "platform/ORV_1_0/Flaggable.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/flagReading.h"
#include "plugin/orvMetadataCmd.h"

/// The command `orvCompound`: edits, queries, saves and publishes one compound of a graph.
///
/// A line is read once, in `doIt`. What it asks for is recorded in the command objects below, and
/// `redoIt` and `undoIt` work from those alone; the compound itself is found again by its path each
/// time, since other commands may have deleted it and made it anew.
class orvCompoundCmd : public orvMetadataCmd, public KPxCommand {
 public:
  /// What `redoIt` changes. A line without any of these, and without edits of metadata, is not
  /// undoable.
  enum EditActionFlags : std::uint32_t {
    kEditCreate = 1,
    kEditExplode = 2,
    kEditAddNodes = 4,
    kEditRemoveNodes = 8,
    kEditRenameNodes = 16,
    kEditPorts = 32,
    kEditPortValues = 64,
    kEditAddStatePorts = 128,
    kEditSetIsReferenced = 256,
    kEditResetToFactory = 512,
    kEditAnnotations = 1024,
  };

  /// What `redoIt` reports once it has made its changes. Saving and publishing are among them: they
  /// write files, and cannot be undone.
  enum QueryActionFlags : std::uint32_t {
    kQuerySpecializedTypeName = 1,
    kQueryIsReferenced = 2,
    kQueryIsImported = 4,
    kQueryListNodes = 8,
    kQueryListPorts = 16,
    kQueryPortDataType = 32,
    kQueryPortDefaultValues = 64,
    kQueryPortMetaDataValue = 128,
    kQueryListPortChildren = 256,
    kQueryCanResetToFactory = 512,
    kQuerySaveAs = 1024,
    kQueryPublish = 2048,
    kQueryPublishGraph = 4096,
    kQueryAnnotationMetaDataValue = 8192,
    kQueryIsEditable = 16384,
  };

  /// The filters of `-listNodes`.
  enum ListNodesFlags : std::uint32_t {
    kListNodeType = 1,
    kListConnected = 2,
    kListConnectedToInput = 4,
    kListConnectedToOutput = 8,
    kListConnectedTo = 16,
  };

  /// The filters of `-listPorts`.
  enum ListPortsFlags : std::uint32_t {
    kListPortConnected = 1,
    kListPortInputs = 2,
    kListPortOutputs = 4,
  };

  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;
  bool isUndoable() const override;

 protected:
  /// One use of `-renameNode`. Texts are UTF-8.
  struct NodeRename {
    std::string from;
    std::string to;
    std::string actual;   ///< the name that the node got
    bool failed = false;  ///< there was no such node; never set back
  };

  KString compoundPath;
  ORV_v1::Flaggable<QueryActionFlags> queryFlags;
  ORV_v1::Flaggable<EditActionFlags> editFlags;
  ORV_v1::CreateCompoundCommand createCommand;
  KString newCompoundName;
  KStringArray nodesToMove;
  KStringArray annotationsToMove;
  ORV_v1::ExplodeCompoundCommand explodeCommand;
  KStringArray compoundsToExplode;
  ORV_v1::NodeCommand addNodeCommand;
  ORV_v1::NodeCommand removeNodeCommand;
  std::vector<NodeRename> renames;
  ORV_v1::ModifyCompoundAnnotationCommand annotationCommand;
  ORV_v1::ModifyCompoundPortCommand portCommand;
  ORV_v1::ModifyCompoundPortCommand portValueCommand;
  KString saveOrPublishName;
  KString publishArgument2, publishArgument3;
  bool publishFlag = false;
  KString publishGraphArgument2, publishGraphArgument3, publishGraphArgument4;
  bool isReferencedValue = false;
  ORV_v1::Flaggable<ListNodesFlags> listNodesFlags;
  KString listNodeType;
  bool listConnectedValue = false;
  KString listConnectedTo;
  ORV_v1::Flaggable<ListPortsFlags> listPortsFlags;
  bool listPortConnectedValue = false;
  KString queriedPortName, queriedPortMetaName;
  KStringArray resetToFactoryNodes;
  KString canResetNodeName;
  KString statePortFirstName, statePortSecondName, statePortType;
  KString createdStateOutputPort, createdStateInputPort;
  KString queriedAnnotationName, queriedAnnotationMetaName;

 private:
  using CompoundHandle = ORV_v1::AddRefWrapper<ORV_v1::Compound>;

  /// Bits of the edit word or of the query word; none when empty.
  struct FlagBits {
    std::uint32_t edit = 0;
    std::uint32_t query = 0;

    constexpr FlagBits() = default;
    constexpr FlagBits(EditActionFlags bit) : edit(bit) {}
    constexpr FlagBits(QueryActionFlags bit) : query(bit) {}
    constexpr bool empty() const { return edit == 0 && query == 0; }
  };

  /// What the steps of a parse share.
  struct Parse : FlagReading {
    const CompoundHandle& compound;
    ORV_v1::Container& container;
    KString connectTo;  ///< empty without `-connectTo`
  };

  /// How one flag of the line is read.
  struct ParseStep {
    const char* flag;
    /// False when the flag is refused: the user is told, and the parse stops. Null for a flag that
    /// only sets its bits.
    bool (orvCompoundCmd::*read)(Parse& parse);
    /// Set once the flag has been read; none when the step sets them itself, or there are none.
    FlagBits sets;
  };

  /// One stage of `redoIt`: run when one of the bits is set, or always without any. False ends the
  /// command with a failure, and what the stages before it did stays.
  struct EditStage {
    FlagBits when;
    bool (orvCompoundCmd::*run)(ORV_v1::Compound& compound);
  };

  /// One stage of `undoIt`, or of the queries: neither can fail.
  struct Stage {
    FlagBits when;
    void (orvCompoundCmd::*run)(ORV_v1::Compound& compound);
  };

  // Each in the order in which it is walked, which is part of the behaviour.
  static const ParseStep kParseSteps[];
  static const EditStage kEditStages[];
  static const Stage kUndoStages[];
  static const Stage kQueryStages[];

  // orvCompoundCmd.cpp

  /// The compound that the line names. Null, and the user is told, when there is none.
  CompoundHandle findCompound() const;
  bool isDue(FlagBits when) const;
  static ORV_v1::ChangeBracket openBracket(ORV_v1::Compound& compound);
  bool runEdits(ORV_v1::Compound& compound);
  bool redoMetadataEdits(ORV_v1::Compound& compound);
  bool requireEditable(ORV_v1::Compound& compound);
  void undoMetadataEdits(ORV_v1::Compound& compound);
  void leaveReset(ORV_v1::Compound& compound);

  // orvCompoundParsing.cpp
  KStatus parseArgs(const KArgList& args);
  void bindCommands(ORV_v1::Container& container);
  bool parseFlags(Parse& parse);

  // orvCompoundNodeEdits.cpp
  bool parseCreate(Parse& parse);
  bool parseExplode(Parse& parse);
  bool parseConnectTo(Parse& parse);
  bool parseAddNode(Parse& parse);
  bool parseAddIONode(Parse& parse);
  bool parseMoveAnnotationIn(Parse& parse);
  bool parseRemoveNode(Parse& parse);
  bool parseMoveNodeIn(Parse& parse);
  bool parseRenameNode(Parse& parse);
  bool prime(ORV_v1::Compound& compound);
  void primeCreate(ORV_v1::Container* container, const char* path);
  bool primeExplode(ORV_v1::Container* container, const char* path);
  bool createCompound(ORV_v1::Compound& compound);
  bool explodeCompounds(ORV_v1::Compound& compound);
  bool addNodes(ORV_v1::Compound& compound);
  bool removeNodes(ORV_v1::Compound& compound);
  bool renameNodes(ORV_v1::Compound& compound);
  void undoAddNodes(ORV_v1::Compound& compound);
  void undoRemoveNodes(ORV_v1::Compound& compound);
  void undoCreate(ORV_v1::Compound& compound);
  void undoExplode(ORV_v1::Compound& compound);
  void undoRenames(ORV_v1::Compound& compound);

  // orvCompoundPublished.cpp: what ties a compound to a published one.
  bool parseSaveAs(Parse& parse);
  bool parsePublish(Parse& parse);
  bool parsePublishGraph(Parse& parse);
  bool parseSetIsReferenced(Parse& parse);
  bool parseResetToFactory(Parse& parse);
  bool parseCanResetToFactory(Parse& parse);
  bool resetToFactory(ORV_v1::Compound& compound);
  void resetChild(ORV_v1::Compound& compound, const KString& name) const;
  void setReferenced(ORV_v1::Compound& compound, bool referenced) const;
  void saveAs(ORV_v1::Compound& compound);
  void publish(ORV_v1::Compound& compound);
  void publishGraph(ORV_v1::Compound& compound);
  void querySpecializedTypeName(ORV_v1::Compound& compound);
  void queryIsReferenced(ORV_v1::Compound& compound);
  void queryIsImported(ORV_v1::Compound& compound);
  void queryIsEditable(ORV_v1::Compound& compound);
  void queryCanResetToFactory(ORV_v1::Compound& compound);

  // orvCompoundPortEdits.cpp
  bool parseCreateInputPort(Parse& parse);
  bool parseCreateOutputPort(Parse& parse);
  bool parseCreatePorts(Parse& parse, ORV_v1::PortIOType direction);
  bool parseRenamePort(Parse& parse);
  bool parseMovePort(Parse& parse);
  bool parseMovePortToIONode(Parse& parse);
  bool parseHidePort(Parse& parse);
  bool parseSetPortDataType(Parse& parse);
  bool parseSetPortDefaultValues(Parse& parse);
  bool parseResetPortDefaultValues(Parse& parse);
  bool parseSetPortMetaDataValue(Parse& parse);
  bool parseDeletePort(Parse& parse);
  bool noteEdit(const Parse& parse, const KString& port, bool recorded, EditActionFlags edit);
  bool redoPortValues(ORV_v1::Compound& compound);
  bool redoPorts(ORV_v1::Compound& compound);
  void undoPortValues(ORV_v1::Compound& compound);
  void undoPorts(ORV_v1::Compound& compound);

  // orvCompoundStatePorts.cpp
  bool parseAddStatePorts(Parse& parse);
  void addStatePorts(ORV_v1::Compound& compound);
  void undoAddStatePorts(ORV_v1::Compound& compound);

  // orvCompoundAnnotations.cpp
  bool parseAddBackdrop(Parse& parse);
  bool parseAddStickyNote(Parse& parse);
  bool parseRemoveAnnotation(Parse& parse);
  bool parseRenameAnnotation(Parse& parse);
  bool parseSetAnnotationMetaDataValue(Parse& parse);
  bool parseQueryAnnotationMetaDataValue(Parse& parse);
  bool redoAnnotations(ORV_v1::Compound& compound);
  void undoAnnotations(ORV_v1::Compound& compound);
  void queryAnnotationMetaDataValue(ORV_v1::Compound& compound);

  // orvCompoundQueries.cpp
  bool parseQueriedPort(Parse& parse);
  bool parseQueryPortMetaDataValue(Parse& parse);
  bool parseListPorts(Parse& parse);
  void runQueries(ORV_v1::Compound& compound);
  void queryPort(ORV_v1::Compound& compound);
  void listPorts(ORV_v1::Compound& compound);
  void listPortsOf(const ORV_v1::PortList& ports) const;
  void queryMetadata(ORV_v1::Compound& compound);

  // orvCompoundListNodes.cpp
  bool parseListNodes(Parse& parse);
  void listNodes(ORV_v1::Compound& compound);
};
