#pragma once

#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// The command `orvPort`: sets, clears and reads the flag bits of one port.
class orvPortCmd : public KPxCommand, public orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;

  /// Always, also for a line that only asks.
  bool isUndoable() const override;

 protected:
  KString portPath;
  unsigned int searchIOType = 0;
  unsigned int searchMode = 0;
  ORV_v1::ModifyNodePortCommand portCommand;

 private:
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  KStatus parseArgs(const KArgList& args);
  void parseFlags(const KArgDatabase& db);
  void record(const KArgDatabase& db, const PortHandle& port, const char* flag,
              ORV_v1::QueryPortFlags operation);

  /// Null, and nothing displayed, without such a container or port.
  PortHandle findPort() const;

  /// Runs `edit` in a bracket of the level that the port is edited in. `StatusFailure` without a
  /// port of a node; what `edit` says is not read.
  template <class Edit>
  KStatus runInBracket(Edit edit);
};
