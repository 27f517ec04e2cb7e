#include "platform/orvUI_1_0/AppServicesHook.h"

#include "standalone/widgets/hooks/HookRegistry.h"

namespace orvUI_v1 {

AppServicesHook::AppServicesHook() = default;
AppServicesHook::~AppServicesHook() { orvuilib::HookRegistry::forget(*this); }

void setAppServicesHook(AppServicesHook* hook) { orvuilib::HookRegistry::install(hook); }

}  // namespace orvUI_v1
