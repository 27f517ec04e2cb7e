#pragma once

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Hue and saturation from 0 to 1, value from 0 without an upper end.
struct Hsv {
  float h = 0.0f;
  float s = 0.0f;
  float v = 0.0f;

  bool operator==(const Hsv& other) const = default;
};

/// Of a colour's three components; negative ones and what is no number count as 0. A grey has no
/// hue, and black no saturation of its own: they keep those of `before`. Red keeps a hue of 1.
ORVUI_EXPORT Hsv toHsv(const orvUI_v1::HIGColor& colour, const Hsv& before);

/// Opaque unless another alpha is given.
ORVUI_EXPORT orvUI_v1::HIGColor fromHsv(const Hsv& hsv, float alpha = 1.0f);

}  // namespace orvuilib
