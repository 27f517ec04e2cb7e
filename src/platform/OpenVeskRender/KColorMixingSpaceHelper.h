#pragma once

#include "platform/OpenVesk/KStringArray.h"
#include "platform/OpenVeskRender/KColor.h"

VESK_API_OPEN

/// The spaces in which a user mixes a colour, and the way of a colour into them.
///
/// Colours are kept in the rendering space, which is scene-linear; sliders and fields show them in
/// the mixing space. A mixing space is either a colour space, which has no views, or a display,
/// whose views say how a picture is made for it. All helpers share the choice of the session.
///
/// With colour management off every name is empty, every list is empty, and colours and slider
/// values stay as they are. A status pointer may be null when the status is of no interest.
class VESK_EXPORT KColorMixingSpaceHelper {
 public:
  enum Direction : int {
    kRenderingToMixing = 0,  ///< for showing a colour
    kMixingToRendering = 1,  ///< for taking over a colour that was mixed
  };

  KColorMixingSpaceHelper();
  ~KColorMixingSpaceHelper();
  KColorMixingSpaceHelper(const KColorMixingSpaceHelper&) = delete;
  KColorMixingSpaceHelper& operator=(const KColorMixingSpaceHelper&) = delete;

  /// Every mixing space, the rendering space first and the displays last. `StatusFailure` with
  /// colour management off.
  KStringArray getMixingSpaceNames(KStatus* status) const;

  KString mixingSpace() const;

  /// Takes the view with it that was last chosen for that space. On any other status than success
  /// the old space stays: `StatusBadArgument` for a name that is not listed, `StatusFailure` when
  /// the space cannot be used, or colour management is off.
  KStatus setMixingSpace(const KString& name);

  /// True when the mixing space is a display.
  bool mixingSpaceHasViews() const;

  /// The views of the mixing space; none, with `StatusFailure`, when it has no views.
  KStringArray getViewNames(KStatus* status) const;

  /// Empty when the mixing space has no views.
  KString view() const;

  /// Chooses a view of the mixing space; pictures are shown through it too. Statuses as for
  /// `setMixingSpace`, and `StatusFailure` when the mixing space has no views.
  KStatus setView(const KString& name);

  /// The colour in the other space, its alpha unchanged. Components may be negative or above 1, on
  /// either side. `StatusFailure`, with the colour unchanged, when colour management is off.
  KColor applyMixingTransform(const KColor& color, Direction direction, KStatus* status) const;

  /// Where a component stands on a slider from `minimum` to `maximum`, given in that range: the
  /// middle of the slider is halfway for the eye. A component outside the range gives a position
  /// outside it. Unchanged in a mixing space that is even for the eye by itself, for an empty
  /// range, and for numbers that are not finite.
  float mixingToSlider(float value, float minimum, float maximum) const;

  /// The reverse: the component that a slider from `minimum` to `maximum` means at `position`.
  float sliderToMixing(float position, float minimum, float maximum) const;

 private:
  struct Rep;
  Rep* rep_ = nullptr;  ///< room for what a later host keeps; the choice is the session's
};

VESK_API_CLOSE
