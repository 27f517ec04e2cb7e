#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/OpenVesk/KPxCommand.h"
#include "tests/support/HostTest.h"

namespace hosttest {

/// What a probe command does. Operations that are not set succeed.
struct ProbeBody {
  std::function<KStatus(KPxCommand& command, const KArgList& arguments)> doIt = nullptr;
  std::function<KStatus()> undoIt = nullptr;
  std::function<KStatus()> redoIt = nullptr;
  bool undoable = false;
};

/// Registers a command of that name, for as long as the host lives.
void addProbe(Host& host, const std::string& name, ProbeBody body, const KSyntax& syntax = {});

/// Registers `edit TEXT`, an undoable command.
void addEdit(Host& host);

/// What the host did with the probe commands since it was last asked, such as "doIt edit a": the
/// operation, the name and the arguments.
Texts takeDiary();

/// How many probe commands exist.
int aliveProbes();

/// A host with `edit` whose probe commands must all be deleted at its end.
class ProbeHost : public Host {
 public:
  ProbeHost();
  ~ProbeHost();
};

}  // namespace hosttest
