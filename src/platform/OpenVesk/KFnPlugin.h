#pragma once

#include "platform/Foundation/KObject.h"
#include "platform/OpenVesk/KPxCommand.h"

VESK_API_OPEN

/// A plug-in's view of itself, built in its two entry points.
class VESK_EXPORT KFnPlugin {
 public:
  using Creator = KPxCommand* (*)();
  using SyntaxFunction = KSyntax (*)();

  /// `StatusFailure` when the object is no plug-in, `StatusBadArgument` when the required host
  /// version is neither "Any" nor this host's.
  KFnPlugin(KObject& object, const char* vendor, const char* version, const char* requiredVersion,
            KStatus* status = nullptr);
  virtual ~KFnPlugin();
  KFnPlugin(const KFnPlugin&) = delete;
  KFnPlugin& operator=(const KFnPlugin&) = delete;

  /// The name under which the host loaded the plug-in.
  KString name(KStatus* status = nullptr) const;

  /// `StatusFailure` when the name is taken, `StatusBadArgument` when it is no command name.
  KStatus registerCommand(const KString& name, Creator creator, SyntaxFunction syntax);

  /// `StatusFailure` when this plug-in has no such command.
  KStatus deregisterCommand(const KString& name);

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_;
};

VESK_API_CLOSE
