#include "standalone/colour/SliderScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vesk::colour {
namespace {

// CIE 1976 lightness: a cube root, and near black a straight line that meets it smoothly.
constexpr double kKneeLight = 216.0 / 24389.0;
constexpr double kSlope = 24389.0 / 27.0;
constexpr double kKneeLightness = kKneeLight * kSlope;

double lightness(double light) {
  const double amount = std::abs(light);
  const double result = amount > kKneeLight ? 116 * std::cbrt(amount) - 16 : kSlope * amount;
  return std::copysign(result, light);
}

double lightOf(double lightness) {
  const double amount = std::abs(lightness);
  const double root = (amount + 16) / 116;
  const double result = amount > kKneeLightness ? root * root * root : amount / kSlope;
  return std::copysign(result, lightness);
}

bool isUsable(float value, float minimum, float maximum) {
  return std::isfinite(value) && std::isfinite(minimum) && std::isfinite(maximum) &&
         minimum != maximum;
}

float toFloat(double value) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

}  // namespace

float lightToSlider(float light, float minimum, float maximum) {
  if (!isUsable(light, minimum, maximum)) return light;
  const double first = lightness(minimum);
  const double share = (lightness(light) - first) / (lightness(maximum) - first);
  return toFloat(std::lerp(static_cast<double>(minimum), static_cast<double>(maximum), share));
}

float sliderToLight(float position, float minimum, float maximum) {
  if (!isUsable(position, minimum, maximum)) return position;
  const double range = static_cast<double>(maximum) - minimum;
  const double share = (static_cast<double>(position) - minimum) / range;
  return toFloat(lightOf(std::lerp(lightness(minimum), lightness(maximum), share)));
}

}  // namespace vesk::colour
