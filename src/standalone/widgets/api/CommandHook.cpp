#include "platform/orvUI_1_0/CommandHook.h"

#include "standalone/widgets/hooks/HookRegistry.h"

namespace orvUI_v1 {

CommandHook::CommandHook() = default;
CommandHook::~CommandHook() { orvuilib::HookRegistry::forget(*this); }

void setCommandHook(CommandHook* hook, ORV_v1::Runtime* runtime) {
  orvuilib::HookRegistry::install(hook, runtime);
}

}  // namespace orvUI_v1
