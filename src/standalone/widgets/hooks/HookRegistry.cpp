#include "standalone/widgets/hooks/HookRegistry.h"

#include <map>

namespace orvuilib {

using orvUI_v1::AppServicesHook;
using orvUI_v1::CommandHook;

namespace {

struct State {
  /// Under null the hook of all runtimes. There are few runtimes.
  std::map<const ORV_v1::Runtime*, CommandHook*> commandHooks;
  AppServicesHook* appServicesHook = nullptr;
  unsigned int servicesRound = 0;
};

/// Never destroyed: a module's hook may go after everything else of the program.
State& state() {
  static State& only = *new State;
  return only;
}

}  // namespace

void HookRegistry::install(CommandHook* hook, ORV_v1::Runtime* runtime) {
  if (hook) {
    state().commandHooks[runtime] = hook;
  } else {
    state().commandHooks.erase(runtime);
  }
}

void HookRegistry::install(AppServicesHook* hook) {
  state().appServicesHook = hook;
  if (hook) ++state().servicesRound;
}

void HookRegistry::forget(const CommandHook& hook) {
  std::erase_if(state().commandHooks, [&hook](const auto& entry) { return entry.second == &hook; });
}

void HookRegistry::forget(const AppServicesHook& hook) {
  if (state().appServicesHook == &hook) state().appServicesHook = nullptr;
}

CommandHook* HookRegistry::commandHook(const ORV_v1::Runtime* runtime) {
  const auto& hooks = state().commandHooks;
  auto found = hooks.find(runtime);
  if (found == hooks.end()) found = hooks.find(nullptr);
  return found == hooks.end() ? nullptr : found->second;
}

AppServicesHook* HookRegistry::appServicesHook() { return state().appServicesHook; }

unsigned int HookRegistry::servicesRound() { return state().servicesRound; }

}  // namespace orvuilib
