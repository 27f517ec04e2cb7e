#include "platform/OpenVeskRender/KColorManagementUtilities.h"

#include "standalone/colour/ColourService.h"

VESK_API_OPEN

bool KColorManagementUtilities::isColorManagementEnabled() {
  return vesk::colour::ColourService::active() != nullptr;
}

VESK_API_CLOSE
