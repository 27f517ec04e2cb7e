#include "standalone/widgets/colour/Hsv.h"

#include <algorithm>
#include <cmath>

namespace orvuilib {
namespace {

using orvUI_v1::HIGColor;

/// Infinite components have no hue between them: the largest number stands for them.
float usable(float component) {
  constexpr float kLargest = 1e30f;
  return std::isnan(component) ? 0.0f : std::clamp(component, 0.0f, kLargest);
}

float hueOf(float r, float g, float b, float largest, float range) {
  const float sixth = largest == r   ? (g - b) / range
                      : largest == g ? (b - r) / range + 2.0f
                                     : (r - g) / range + 4.0f;
  const float hue = sixth / 6.0f;
  return hue - std::floor(hue);
}

}  // namespace

Hsv toHsv(const HIGColor& colour, const Hsv& before) {
  const float r = usable(colour.r), g = usable(colour.g), b = usable(colour.b);
  const float largest = std::max({r, g, b});
  const float range = largest - std::min({r, g, b});
  if (largest <= 0.0f) return {before.h, before.s, 0.0f};
  if (range <= 0.0f) return {before.h, 0.0f, largest};
  const float hue = hueOf(r, g, b, largest, range);
  const bool samePlace = hue == 0.0f && before.h == 1.0f;
  return {samePlace ? before.h : hue, range / largest, largest};
}

HIGColor fromHsv(const Hsv& hsv, float alpha) {
  const auto component = [&hsv](float offset) {
    const float at = std::fmod(offset + hsv.h * 6.0f, 6.0f);
    const float dip = std::clamp(std::min(at, 4.0f - at), 0.0f, 1.0f);
    return hsv.v - hsv.v * hsv.s * dip;
  };
  return {component(5.0f), component(3.0f), component(1.0f), alpha};
}

}  // namespace orvuilib
