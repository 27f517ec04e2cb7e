#pragma once

#include <type_traits>

namespace orvUI_v1 {

/// A colour of the editors: red, green, blue and alpha, and nothing else. Colours are kept
/// scene-linear, in the rendering space, unless an operation says otherwise. Opaque black at first.
struct HIGColor {
  float r = 0.0f;
  float g = 0.0f;
  float b = 0.0f;
  float a = 1.0f;

  bool operator==(const HIGColor& other) const = default;
};

static_assert(sizeof(HIGColor) == 16 && std::is_standard_layout_v<HIGColor> &&
                  std::is_trivially_copyable_v<HIGColor>,
              "colours are copied bytewise to and from other types of four floats");

}  // namespace orvUI_v1
