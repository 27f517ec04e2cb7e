#pragma once

#include "standalone/colour/ScreenPicker.h"

namespace vesk {

/// Lays a still picture over each screen, with a crosshair and a magnifying glass. A click takes
/// the colour under it; Escape or another button cancels. Without a screen nothing is picked.
class QtScreenPicker final : public colour::ScreenPicker {
 public:
  std::optional<KColor> pick() override;
};

}  // namespace vesk
