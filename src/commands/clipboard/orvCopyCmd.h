#pragma once

#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// The command `orvCopy`: puts nodes and annotations of a compound on the clipboard. It changes no
/// graph, so there is nothing to undo.
class orvCopyCmd : public KPxCommand, public orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;

  // Nothing is done, and that succeeds.
  KStatus undoIt() override;
  KStatus redoIt() override;
  bool isUndoable() const override;

 protected:
  KString compoundPath;
  ORV_v1::CopyCommand copyCommand;

 private:
  KStatus parseArgs(const KArgList& args);
};
