#pragma once

#include "platform/ORV_1_0/PasteCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// The command `orvPaste`: adds what is on the clipboard to a compound.
class orvPasteCmd : public KPxCommand, public orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;

  /// Always.
  bool isUndoable() const override;

 protected:
  KString compoundPath;
  ORV_v1::PasteCommand pasteCommand;

 private:
  KStatus parseArgs(const KArgList& args);

  /// Runs a part of the paste in a bracket of the compound, or of the container when the compound
  /// is gone. `StatusFailure` when it says false, and without the container.
  KStatus runInBracket(bool (ORV_v1::PasteCommand::*part)());
};
