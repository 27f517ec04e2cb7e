#pragma once

#include "platform/OpenVesk/KFnPlugin.h"
#include "platform/OpenVesk/KGlobal.h"

#define MODULE_ENTRY extern "C" VESK_EXPORT

/// `NAME [LINE]`: an undoable command that runs the line, if there is one, and tells of its undo
/// and redo with warnings.
class ModuleCommand : public KPxCommand {
 public:
  KStatus doIt(const KArgList& arguments) override {
    if (arguments.length() == 0) return StatusSuccess;
    return KGlobal::executeCommand(arguments.asString(0), false, true);
  }
  KStatus undoIt() override { return tell("undone"); }
  KStatus redoIt() override { return tell("redone"); }
  bool isUndoable() const override { return true; }

  static KPxCommand* create() { return new ModuleCommand; }
  static KSyntax makeSyntax() { return {}; }

 private:
  static KStatus tell(const char* what) {
    KGlobal::displayWarning(what);
    return StatusSuccess;
  }
};
