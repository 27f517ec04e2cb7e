#pragma once

#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"

namespace orvuilib {

/// The hooks that the editors call. A hook that goes is forgotten.
class ORVUI_EXPORT HookRegistry {
 public:
  static void install(orvUI_v1::CommandHook* hook, ORV_v1::Runtime* runtime);
  static void install(orvUI_v1::AppServicesHook* hook);
  static void forget(const orvUI_v1::CommandHook& hook);
  static void forget(const orvUI_v1::AppServicesHook& hook);

  /// The hook of that runtime, or else that of all runtimes. Null when there is none: then nothing
  /// can be edited.
  static orvUI_v1::CommandHook* commandHook(const ORV_v1::Runtime* runtime = nullptr);

  /// Null when there is none.
  static orvUI_v1::AppServicesHook* appServicesHook();

  /// How many services hooks have been installed so far: another number, perhaps another hook.
  static unsigned int servicesRound();
};

}  // namespace orvuilib
