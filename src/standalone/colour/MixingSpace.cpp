#include "standalone/colour/MixingSpace.h"

#include <algorithm>

namespace vesk::colour {
namespace {

bool contains(const std::vector<MixingSpace>& spaces, const std::string& name) {
  return std::any_of(spaces.begin(), spaces.end(),
                     [&](const MixingSpace& space) { return space.name == name; });
}

std::vector<OCIO::ConstColorSpaceRcPtr> activeColourSpaces(const OCIO::Config& config) {
  constexpr auto kReference = OCIO::SEARCH_REFERENCE_SPACE_SCENE;
  constexpr auto kVisibility = OCIO::COLORSPACE_ACTIVE;
  std::vector<OCIO::ConstColorSpaceRcPtr> spaces;
  for (int i = 0; i < config.getNumColorSpaces(kReference, kVisibility); ++i) {
    const char* name = config.getColorSpaceNameByIndex(kReference, kVisibility, i);
    spaces.push_back(config.getColorSpace(name));
  }
  return spaces;
}

std::vector<std::string> colourSpaceNames(const OCIO::Config& config) {
  auto spaces = activeColourSpaces(config);
  const auto isForMixing = [](const auto& space) { return space->hasCategory(kMixingCategory); };
  const bool usesCategory = std::any_of(spaces.begin(), spaces.end(), isForMixing);
  std::erase_if(spaces, [&](const auto& space) {
    return space->isData() || (usesCategory && !isForMixing(space));
  });
  std::vector<std::string> names;
  for (const auto& space : spaces) names.push_back(space->getName());
  return names;
}

std::vector<MixingSpace> listDisplays(const OCIO::Config& config) {
  std::vector<MixingSpace> displays;
  for (int i = 0; i < config.getNumDisplays(); ++i) {
    const char* name = config.getDisplay(i);
    MixingSpace display{name, {}, config.getDefaultView(name)};
    for (int k = 0; k < config.getNumViews(name); ++k) {
      display.views.push_back(config.getView(name, k));
    }
    if (display.hasViews()) displays.push_back(display);
  }
  return displays;
}

std::string roleSpace(const OCIO::Config& config, const char* role) {
  const auto space = config.getColorSpace(role);
  return space ? space->getName() : "";
}

}  // namespace

std::vector<MixingSpace> listMixingSpaces(const OCIO::Config& config) {
  std::vector<MixingSpace> spaces{{roleSpace(config, OCIO::ROLE_SCENE_LINEAR), {}, ""}};
  const auto displays = listDisplays(config);
  for (const std::string& name : colourSpaceNames(config)) {
    if (!contains(spaces, name) && !contains(displays, name)) spaces.push_back({name, {}, ""});
  }
  for (const MixingSpace& display : displays) {
    if (!contains(spaces, display.name)) spaces.push_back(display);
  }
  return spaces;
}

std::vector<std::string> preferredMixingSpaces(const OCIO::Config& config) {
  return {roleSpace(config, OCIO::ROLE_COLOR_PICKING), config.getDefaultDisplay()};
}

}  // namespace vesk::colour
