#include "hook/orvVeskCommandHook.h"

orvVeskCommandHook::orvVeskCommandHook() {
  orvUI_v1::setCommandHook(this, nullptr);
  orvUI_v1::setAppServicesHook(this);
}

orvVeskCommandHook::~orvVeskCommandHook() = default;
