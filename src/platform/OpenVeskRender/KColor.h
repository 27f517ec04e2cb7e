#pragma once

#include <type_traits>

#include "platform/Foundation/KApi.h"

VESK_API_OPEN

/// A colour: red, green, blue and alpha, in that order and with nothing else. The space that the
/// numbers are in is said by whoever gives or takes the colour. Opaque black when default-built.
class VESK_EXPORT KColor {
 public:
  KColor() = default;
  KColor(float red, float green, float blue, float alpha = 1.0f)
      : r(red), g(green), b(blue), a(alpha) {}

  bool operator==(const KColor& other) const = default;

  float r = 0.0f;
  float g = 0.0f;
  float b = 0.0f;
  float a = 1.0f;
};

static_assert(sizeof(KColor) == 16 && std::is_standard_layout_v<KColor> &&
                  std::is_trivially_copyable_v<KColor>,
              "colours are copied bytewise to and from other types of four floats");

VESK_API_CLOSE
