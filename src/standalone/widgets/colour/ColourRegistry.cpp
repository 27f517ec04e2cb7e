#include "standalone/widgets/colour/ColourRegistry.h"

namespace orvuilib {

using orvUI_v1::ColorManagementHandler;

/// Never destroyed: a module's handler may go after everything else of the program.
ColourRegistry& ColourRegistry::instance() {
  static ColourRegistry& only = *new ColourRegistry;
  return only;
}

void ColourRegistry::setHandler(ColorManagementHandler* handler) {
  if (handler == handler_) return;
  handler_ = handler;
  restored_ = false;
  emit changed();
}

void ColourRegistry::forget(const ColorManagementHandler& handler) {
  if (handler_ == &handler) setHandler(nullptr);
}

void ColourRegistry::restorePreferences() {
  if (!handler_) return;
  restored_ = true;
  handler_->restoreUserPrefs();
}

void ColourRegistry::takeUpPreferences() {
  if (!restored_) restorePreferences();
}

void ColourRegistry::setEyeDropper(orvUI_v1::EyeDropperHandler picker) {
  if (picker == eyeDropper_) return;
  eyeDropper_ = picker;
  emit changed();
}

}  // namespace orvuilib
