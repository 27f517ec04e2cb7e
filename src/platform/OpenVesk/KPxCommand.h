#pragma once

#include "platform/OpenVesk/KArgList.h"
#include "platform/OpenVesk/KStringArray.h"
#include "platform/OpenVesk/KSyntax.h"

VESK_API_OPEN

/// The base of every command object. The host creates one object a line, asks `isUndoable` after
/// `doIt`, and keeps it on the undo queue or deletes it.
class VESK_EXPORT KPxCommand {
 public:
  KPxCommand();
  KPxCommand(const KPxCommand&) = delete;
  KPxCommand& operator=(const KPxCommand&) = delete;
  virtual ~KPxCommand();

  virtual KStatus doIt(const KArgList& args) = 0;

  /// Default: `StatusFailure`; there is nothing to undo or redo.
  virtual KStatus undoIt();
  virtual KStatus redoIt();

  /// Default: false.
  virtual bool isUndoable() const;

  /// Default: true when a syntax was registered with the command.
  virtual bool hasSyntax() const;

  /// The syntax registered with this command; empty for an object that the host did not create.
  KSyntax syntax() const;

  /// The result of the running command. Outside a command these do nothing.
  static void clearResult();
  static void setResult(bool value);
  static void setResult(unsigned int value);
  static void setResult(const char* value);
  static void setResult(const KString& value);
  static void setResult(const KStringArray& value);

  /// Add to the result, which becomes a string array.
  static void appendToResult(const char* value);
  static void appendToResult(const KString& value);
  static void appendToResult(const KStringArray& value);

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_ = nullptr;
};

VESK_API_CLOSE
