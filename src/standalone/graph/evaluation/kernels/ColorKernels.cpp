#include <cmath>

#include "standalone/graph/evaluation/kernels/Arithmetic.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using Color3 = Vector3;
using Color4 = Vector4;

template <std::size_t count>
std::array<float, count> clampColor(std::array<float, count> color) {
  return eachComponent<count>([&](std::size_t i) { return clamp(color[i], 0, 1); });
}

float luminance(Color3 color) {
  return 0.2126F * color[0] + 0.7152F * color[1] + 0.0722F * color[2];
}

Color3 saturation(Color3 color, float amount) {
  const float gray = luminance(color);
  return eachComponent<3>([&](std::size_t i) { return gray + (color[i] - gray) * amount; });
}

Color3 gamma(Color3 color, float gamma) {
  if (gamma == 0) return color;
  return eachComponent<3>([&](std::size_t i) {
    return std::copysign(std::pow(std::fabs(color[i]), 1 / gamma), color[i]);
  });
}

Color3 exposure(Color3 color, float stops) {
  const float factor = std::exp2(stops);
  return eachComponent<3>([&](std::size_t i) { return color[i] * factor; });
}

/// A share of a turn: red is 0, green 1/3, blue 2/3. Rounding may give a whole turn, which is none.
float hueOf(Color3 color, float largest, float chroma) {
  const auto [red, green, blue] = color;
  float sixths = 0;
  if (largest == red) {
    sixths = (green - blue) / chroma;
  } else if (largest == green) {
    sixths = 2 + (blue - red) / chroma;
  } else {
    sixths = 4 + (red - green) / chroma;
  }
  const float hue = (sixths < 0 ? sixths + 6 : sixths) / 6;
  return hue >= 1 ? 0 : hue;
}

std::tuple<float, float, float> rgbToHsv(Color3 color) {
  const float largest = maximum(maximum(color[0], color[1]), color[2]);
  const float smallest = minimum(minimum(color[0], color[1]), color[2]);
  const float chroma = largest - smallest;
  const float hue = chroma == 0 ? 0 : hueOf(color, largest, chroma);
  return {hue, largest == 0 ? 0 : chroma / largest, largest};
}

Color3 hsvToRgb(float hue, float saturation, float value) {
  const double sixths = (static_cast<double>(hue) - std::floor(hue)) * 6;
  const auto component = [&](double shift) {
    const double k = std::fmod(shift + sixths, 6.0);
    const double missing = std::max(std::min(std::min(k, 4 - k), 1.0), 0.0);
    return static_cast<float>(value * (1 - saturation * missing));
  };
  return {component(5), component(3), component(1)};
}

Color4 scaleColor(Color4 color, float factor) {
  return {color[0] * factor, color[1] * factor, color[2] * factor, color[3]};
}

Color4 unpremultiply(Color4 color) {
  const float alpha = color[3];
  if (alpha == 0) return color;
  return {color[0] / alpha, color[1] / alpha, color[2] / alpha, alpha};
}

Color4 over(Color4 front, Color4 back) {
  return eachComponent<4>([&](std::size_t i) { return front[i] + back[i] * (1 - front[3]); });
}

constexpr KernelEntry kKernels[] = {
    entry("core::color::combine3",
          [](float red, float green, float blue) {
            return Color3{red, green, blue};
          }),
    entry("core::color::separate3",
          [](Color3 color) { return std::tuple(color[0], color[1], color[2]); }),
    entry<mixEach<3>>("core::color::mix3"),
    entry<clampColor<3>>("core::color::clamp3"),
    entry("core::color::combine",
          [](float red, float green, float blue, float alpha) {
            return Color4{red, green, blue, alpha};
          }),
    entry("core::color::separate",
          [](Color4 color) { return std::tuple(color[0], color[1], color[2], color[3]); }),
    entry<mixEach<4>>("core::color::mix"),
    entry<clampColor<4>>("core::color::clamp"),
    entry<luminance>("core::color::luminance"),
    entry<saturation>("core::color::saturation"),
    entry<gamma>("core::color::gamma"),
    entry<exposure>("core::color::exposure"),
    entry<rgbToHsv>("core::color::rgb_to_hsv"),
    entry<hsvToRgb>("core::color::hsv_to_rgb"),
    entry("core::color::premultiply", [](Color4 color) { return scaleColor(color, color[3]); }),
    entry<unpremultiply>("core::color::unpremultiply"),
    entry<over>("core::color::over"),
};

}  // namespace

KernelTable colorKernels() { return kKernels; }

}  // namespace orvlib
