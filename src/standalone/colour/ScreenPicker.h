#pragma once

#include <optional>

#include "platform/OpenVeskRender/KColor.h"

namespace vesk::colour {

/// Reads a colour from the screen; the window system's part of the program supplies one.
class ScreenPicker {
 public:
  ScreenPicker() = default;
  ScreenPicker(const ScreenPicker&) = delete;
  ScreenPicker& operator=(const ScreenPicker&) = delete;
  virtual ~ScreenPicker() = default;

  /// Lets the user point at the screen and waits for it. The colour as the screen shows it, each
  /// component from 0 to 1; nothing when the user cancelled.
  virtual std::optional<KColor> pick() = 0;
};

}  // namespace vesk::colour
