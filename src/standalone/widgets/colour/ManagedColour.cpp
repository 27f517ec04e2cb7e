#include "standalone/widgets/colour/ManagedColour.h"

#include <algorithm>
#include <cmath>

#include "standalone/widgets/colour/ColourRegistry.h"

namespace orvuilib {
namespace {

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;

ColorManagementHandler* handler() { return ColourRegistry::instance().handler(); }

float shown(float component) {
  return std::isnan(component) ? 0.0f : std::clamp(component, 0.0f, 1.0f);
}

}  // namespace

HIGColor toMixing(const HIGColor& colour) {
  const auto* management = handler();
  return management ? management->applyMixingTransform(colour, ColorManagementHandler::kForward)
                    : colour;
}

HIGColor fromMixing(const HIGColor& colour) {
  const auto* management = handler();
  return management ? management->applyMixingTransform(colour, ColorManagementHandler::kInverse)
                    : colour;
}

QColor toScreen(const HIGColor& colour) {
  auto* management = handler();
  const HIGColor view =
      management ? management->applyViewTransform(colour, ColorManagementHandler::kForward)
                 : colour;
  return QColor::fromRgbF(shown(view.r), shown(view.g), shown(view.b), shown(view.a));
}

HIGColor fromScreen(const QColor& colour) {
  const HIGColor view{colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
  auto* management = handler();
  return management ? management->applyViewTransform(view, ColorManagementHandler::kInverse) : view;
}

float toSliderPosition(float component, float maximum) {
  const auto* management = handler();
  const float value = management ? management->mixingToSlider(component, 0.0f, maximum) : component;
  return shown(value / maximum);
}

float fromSliderPosition(float position, float maximum) {
  const auto* management = handler();
  const float value = position * maximum;
  return management ? management->sliderToMixing(value, 0.0f, maximum) : value;
}

}  // namespace orvuilib
