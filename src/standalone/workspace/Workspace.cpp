#include "standalone/workspace/Workspace.h"

#include <algorithm>
#include <array>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/OptionVariables.h"

namespace vesk {
namespace {

constexpr std::array kScales{100, 125, 150, 175, 200};
Workspace* currentWorkspace = nullptr;

}  // namespace

Workspace::Workspace() { currentWorkspace = this; }

Workspace::~Workspace() {
  if (currentWorkspace == this) currentWorkspace = nullptr;
}

Workspace* Workspace::current() { return currentWorkspace; }

int interfaceScale() {
  HostSession* session = HostSession::current();
  const auto* value = session ? session->optionVariables().find("interfaceScale") : nullptr;
  const int* scale = value ? std::get_if<int>(value) : nullptr;
  const bool offered = scale && std::find(kScales.begin(), kScales.end(), *scale) != kScales.end();
  return offered ? *scale : 100;
}

}  // namespace vesk
