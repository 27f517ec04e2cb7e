#include "platform/orvUI_1_0/ColorManagementHandler.h"

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/preferences/Preferences.h"

namespace orvUI_v1 {

using orvuilib::ColourRegistry;
using orvuilib::Preferences;

namespace {

const QString kSection = QStringLiteral("colorManagement");
const QString kEnabled = QStringLiteral("enabled");
const QString kMixingSpace = QStringLiteral("mixingSpace");
const QString kViewSpace = QStringLiteral("viewSpace");

}  // namespace

ColorManagementHandler::ColorManagementHandler() = default;

ColorManagementHandler::~ColorManagementHandler() { ColourRegistry::instance().forget(*this); }

bool ColorManagementHandler::enabled() const { return enabled_; }

void ColorManagementHandler::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  ColourRegistry::instance().tellChange();
}

bool ColorManagementHandler::setMixingSpace(const QString& name) {
  if (name != mixingSpace_) viewSpace_.clear();
  mixingSpace_ = name;
  ColourRegistry::instance().tellChange();
  return true;
}

bool ColorManagementHandler::setViewSpace(const QString& name) {
  viewSpace_ = name;
  ColourRegistry::instance().tellChange();
  return true;
}

HIGColor ColorManagementHandler::applyMixingTransform(const HIGColor& color, Direction) const {
  return color;
}

float ColorManagementHandler::mixingToSlider(float value, float, float) const { return value; }

float ColorManagementHandler::sliderToMixing(float position, float, float) const {
  return position;
}

/// The space comes before the view, which is one of that space.
void ColorManagementHandler::restoreUserPrefs() {
  const QJsonObject stored = Preferences::instance().section(kSection);
  setEnabled(stored.value(kEnabled).toBool(enabled()));
  const QString space = stored.value(kMixingSpace).toString();
  if (!space.isEmpty() && !setMixingSpace(space)) return;
  const QString view = stored.value(kViewSpace).toString();
  if (!view.isEmpty()) setViewSpace(view);
}

/// What was never told stays stored, as where the program has no colour management for now; but a
/// view goes with its space.
void ColorManagementHandler::saveUserPrefs() const {
  QJsonObject section = Preferences::instance().section(kSection);
  section.remove(kEnabled);
  if (!enabled()) section.insert(kEnabled, false);
  if (!mixingSpace_.isEmpty()) {
    if (section.value(kMixingSpace) != mixingSpace_) section.remove(kViewSpace);
    section.insert(kMixingSpace, mixingSpace_);
  }
  if (!viewSpace_.isEmpty()) section.insert(kViewSpace, viewSpace_);
  Preferences::instance().setSection(kSection, section);
}

void ColorManagementHandler::registerCMHandler(ColorManagementHandler* handler) {
  ColourRegistry::instance().setHandler(handler);
}

void setEyeDropperHandler(EyeDropperHandler handler) {
  ColourRegistry::instance().setEyeDropper(handler);
}

}  // namespace orvUI_v1
