#include "tests/editors/ColourRecorders.h"

#include <QJsonObject>

#include "platform/OpenVeskRender/KColorMixingSpaceHelper.h"
#include "platform/OpenVeskRender/KColorPickerUtilities.h"
#include "standalone/colour/ColourService.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/preferences/Preferences.h"

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;
using vesk::colour::ColourService;

namespace {

vesk::colour::Direction serviceDirection(int direction) {
  return direction == 0 ? vesk::colour::Direction::FromRendering
                        : vesk::colour::Direction::ToRendering;
}

}  // namespace

ColourRecorders& ColourRecorders::instance() {
  static ColourRecorders only;
  return only;
}

HIGColor ColorManagementHandler::applyMixingTransform(const HIGColor& color,
                                                      Direction direction) const {
  ColourRecorders::instance().baseDirections.push_back(direction);
  return color;
}

KColorMixingSpaceHelper::KColorMixingSpaceHelper() {
  ColourRecorders::instance().registeredBeforeHelper =
      orvuilib::ColourRegistry::instance().handler();
}

KStringArray KColorMixingSpaceHelper::getViewNames(KStatus*) const {
  ++ColourRecorders::instance().questionsForViews;
  return HostAccess::stringArray(ColourService::current()->mixingSpace().views);
}

KColor KColorMixingSpaceHelper::applyMixingTransform(const KColor& color, Direction direction,
                                                     KStatus* status) const {
  ColourRecorders::instance().mixing.push_back({direction, status});
  const ColourService* service = ColourService::active();
  return service ? service->applyMixing(color, serviceDirection(direction)) : color;
}

KColor KColorPickerUtilities::applyViewTransform(const KColor& color, Direction direction) {
  ColourRecorders::instance().views.push_back({direction, nullptr});
  const ColourService* service = ColourService::active();
  return service ? service->applyView(color, serviceDirection(direction)) : color;
}

std::pair<QString, QString> keptByBase(const ColorManagementHandler& handler) {
  auto& preferences = orvuilib::Preferences::instance();
  const QJsonObject before = preferences.all();
  preferences.replaceAll({});
  handler.saveUserPrefs();
  const QJsonObject section = preferences.section("colorManagement");
  preferences.replaceAll(before);
  return {section.value("mixingSpace").toString(), section.value("viewSpace").toString()};
}
