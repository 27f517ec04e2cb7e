#pragma once

#include "platform/OpenVesk/KStatus.h"
#include "platform/OpenVeskRender/KColor.h"

VESK_API_OPEN

/// What a colour picker needs of the screen.
class VESK_EXPORT KColorPickerUtilities {
 public:
  enum Direction : int {
    kRenderingToView = 0,  ///< for painting a colour on the screen
    kViewToRendering = 1,  ///< for a colour read from the screen
  };

  /// The colour as the display and view in force show it, or back; alpha stays. Unchanged with
  /// colour management off. A view that cuts off what the display cannot show does not lead all the
  /// way back.
  static KColor applyViewTransform(const KColor& color, Direction direction);

  /// Lets the user pick a point of the screen and waits for it. The colour is in the rendering
  /// space, or as read from the screen with colour management off. `StatusFailure` and opaque black
  /// when the user cancelled or there is no screen. `status` may be null.
  static KColor grabColor(KStatus* status);
};

VESK_API_CLOSE
