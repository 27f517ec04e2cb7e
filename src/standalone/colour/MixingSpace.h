#pragma once

#include <string>
#include <vector>

#include "standalone/colour/TransformCache.h"

namespace vesk::colour {

/// A colour space in the configuration belongs to this category to be offered for mixing. In a
/// configuration that does not use it, every colour space that is not data is offered.
inline constexpr const char* kMixingCategory = "mixing-space";

/// A space in which colours are mixed: a colour space, or a display with its views.
struct MixingSpace {
  std::string name;
  std::vector<std::string> views;  ///< empty for a colour space
  std::string view;                ///< the one last chosen, at first the configuration's default

  bool hasViews() const { return !views.empty(); }
  Target target() const { return {name, view}; }
};

/// The rendering space, then the colour spaces, then the displays, each in the configuration's
/// order. No name comes twice: of a display and a colour space that share one, the display is
/// listed, unless the colour space is the rendering space.
std::vector<MixingSpace> listMixingSpaces(const OCIO::Config& config);

/// The names in which to look for the first mixing space: that of the role `color_picking`, then
/// the default display.
std::vector<std::string> preferredMixingSpaces(const OCIO::Config& config);

}  // namespace vesk::colour
