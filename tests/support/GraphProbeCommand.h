#pragma once

#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvMetadataCmd.h"

/// `graphProbe CONTAINER PATH`: the metadata flags on the compound of that path, with as much of a
/// graph's edits as it takes to have objects for them. Uses its base as the commands on compounds,
/// nodes and watch points do: metadata first, then the other edits, then the query.
class GraphProbeCommand : public orvMetadataCmd, public KPxCommand {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;
  bool isUndoable() const override;

 private:
  /// What the line is about, found again for each call: a compound, or with `-node` any node, or
  /// with `-watchPoint` a port.
  struct Subject {
    ORV_v1::Container* container = nullptr;
    ORV_v1::AddRefWrapper<ORV_v1::Compound> compound;
    ORV_v1::AddRefWrapper<ORV_v1::Node> node;
    ORV_v1::AddRefWrapper<ORV_v1::Port> port;
  };

  KStatus parseArgs(const KArgList& args);
  KStatus parseFlags(const KArgDatabase& db);
  void parseSubjectMetadata(KStatus& status, const KArgDatabase& db, const Subject& subject);
  void parseEdits(const KArgDatabase& db, const Subject& subject);

  bool find(Subject& subject) const;
  bool findPort(Subject& subject) const;
  ORV_v1::ChangeBracket openBracket(const Subject& subject) const;

  bool editsNodes() const { return addsNode_ || removesNode_; }
  bool redoEdits();
  void showCreated() const;
  void query(const Subject& subject) const;

  KString path_;
  KString portName_;
  bool onNode_ = false;
  bool onWatchPoint_ = false;

  ORV_v1::NodeCommand nodes_;
  ORV_v1::CreateCompoundCommand compounds_;
  ORV_v1::WatchPointCommand watchPoints_;
  bool addsNode_ = false;
  bool removesNode_ = false;
  bool createsCompound_ = false;
  bool addsWatchPoint_ = false;
};
