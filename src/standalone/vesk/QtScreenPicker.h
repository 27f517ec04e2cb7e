#pragma once

#include "standalone/colour/ScreenPicker.h"

namespace vesk {

/// Lays a still picture over each screen, with a crosshair and a magnifying glass. A click takes
/// the colour under it; Escape or another button cancels.
///
/// Where the window system shows no picture of the screen, the colour can be taken from the windows
/// of this program alone; where there are none either, nothing is picked and a warning says why.
class QtScreenPicker final : public colour::ScreenPicker {
 public:
  std::optional<KColor> pick() override;
};

}  // namespace vesk
