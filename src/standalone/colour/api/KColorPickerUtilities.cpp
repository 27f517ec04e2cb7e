#include "platform/OpenVeskRender/KColorPickerUtilities.h"

#include "standalone/colour/ColourService.h"

VESK_API_OPEN

using vesk::colour::ColourService;

KColor KColorPickerUtilities::applyViewTransform(const KColor& color, Direction direction) {
  const ColourService* service = ColourService::active();
  if (!service) return color;
  return service->applyView(color, direction == kRenderingToView
                                       ? vesk::colour::Direction::FromRendering
                                       : vesk::colour::Direction::ToRendering);
}

KColor KColorPickerUtilities::grabColor(KStatus* status) {
  const ColourService* service = ColourService::current();
  const auto color = service ? service->grabScreenColour() : std::nullopt;
  if (status) *status = color ? StatusSuccess : StatusFailure;
  return color.value_or(KColor());
}

VESK_API_CLOSE
