#pragma once

namespace vesk::colour {

/// The position, from `minimum` to `maximum`, at which a slider shows a linear amount of light so
/// that equal steps look equal. Amounts and positions outside the range go on along the same curve,
/// and negative ones mirror it. Unchanged for an empty range and for numbers that are not finite.
float lightToSlider(float light, float minimum, float maximum);

/// The reverse.
float sliderToLight(float position, float minimum, float maximum);

}  // namespace vesk::colour
