#pragma once

#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// The command `orvChangeBracket`: opens and closes a change bracket across commands, or tells
/// whether one is open.
class orvChangeBracketCmd : public KPxCommand, public orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;
  bool isUndoable() const override;

 protected:
  /// The compound in the container that is the client; empty: the container itself is.
  KString bracketNodePath;
  bool closeBracket = false;
  bool openBracket = false;

 private:
  /// What the bracket is opened on, found again for each call.
  struct Target {
    ORV_v1::Container* container = nullptr;
    ORV_v1::AddRefWrapper<ORV_v1::Compound> compound;
    ORV_v1::ChangeBracketClient* client = nullptr;
  };

  KStatus parseArgs(const KArgList& args);

  /// False, and the user is told, when there is no such container or compound.
  bool findTarget(Target& target) const;
};
