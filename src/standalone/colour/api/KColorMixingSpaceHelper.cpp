#include "platform/OpenVeskRender/KColorMixingSpaceHelper.h"

#include "standalone/colour/ColourService.h"
#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

using vesk::colour::ColourService;

namespace {

void report(KStatus* status, bool succeeded) {
  if (status) *status = succeeded ? StatusSuccess : StatusFailure;
}

}  // namespace

KColorMixingSpaceHelper::KColorMixingSpaceHelper() = default;

KColorMixingSpaceHelper::~KColorMixingSpaceHelper() = default;

KStringArray KColorMixingSpaceHelper::getMixingSpaceNames(KStatus* status) const {
  const ColourService* service = ColourService::active();
  report(status, service);
  std::vector<std::string> names;
  if (!service) return HostAccess::stringArray(names);
  for (const auto& space : service->mixingSpaces()) names.push_back(space.name);
  return HostAccess::stringArray(names);
}

KString KColorMixingSpaceHelper::mixingSpace() const {
  const ColourService* service = ColourService::active();
  return service ? HostAccess::string(service->mixingSpace().name) : KString();
}

KStatus KColorMixingSpaceHelper::setMixingSpace(const KString& name) {
  ColourService* service = ColourService::active();
  return service ? service->setMixingSpace(HostAccess::text(name)) : StatusFailure;
}

bool KColorMixingSpaceHelper::mixingSpaceHasViews() const {
  const ColourService* service = ColourService::active();
  return service && service->mixingSpace().hasViews();
}

KStringArray KColorMixingSpaceHelper::getViewNames(KStatus* status) const {
  const ColourService* service = ColourService::active();
  report(status, mixingSpaceHasViews());
  return HostAccess::stringArray(service ? service->mixingSpace().views
                                         : std::vector<std::string>());
}

KString KColorMixingSpaceHelper::view() const {
  const ColourService* service = ColourService::active();
  return service ? HostAccess::string(service->mixingSpace().view) : KString();
}

KStatus KColorMixingSpaceHelper::setView(const KString& name) {
  ColourService* service = ColourService::active();
  return service ? service->setView(HostAccess::text(name)) : StatusFailure;
}

KColor KColorMixingSpaceHelper::applyMixingTransform(const KColor& color, Direction direction,
                                                     KStatus* status) const {
  const ColourService* service = ColourService::active();
  report(status, service);
  if (!service) return color;
  return service->applyMixing(color, direction == kRenderingToMixing
                                         ? vesk::colour::Direction::FromRendering
                                         : vesk::colour::Direction::ToRendering);
}

float KColorMixingSpaceHelper::mixingToSlider(float value, float minimum, float maximum) const {
  const ColourService* service = ColourService::active();
  return service ? service->mixingToSlider(value, minimum, maximum) : value;
}

float KColorMixingSpaceHelper::sliderToMixing(float position, float minimum, float maximum) const {
  const ColourService* service = ColourService::active();
  return service ? service->sliderToMixing(position, minimum, maximum) : position;
}

VESK_API_CLOSE
