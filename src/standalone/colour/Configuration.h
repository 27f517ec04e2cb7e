#pragma once

#include <OpenColorIO/OpenColorIO.h>

#include <functional>
#include <string>

namespace vesk::colour {

namespace OCIO = OCIO_NAMESPACE;

/// Hears what went wrong, as text for the user.
using WarningSink = std::function<void(const std::string& text)>;

struct Configuration {
  OCIO::ConstConfigRcPtr config;  ///< valid and with the role `scene_linear`
  std::string path;               ///< empty for the shipped one
};

/// The text of the configuration that is used when no other is named, or when that one is broken.
extern const char* const kShippedConfiguration;

/// The file named by the user: `option`, else the environment variable OCIO, else empty.
std::string configurationPath(const std::string& option);

/// Reads the file; an empty path gives the shipped configuration. A file that is missing or cannot
/// be used gives the shipped one too, with a warning that names file and reason.
Configuration loadConfiguration(const std::string& path, const WarningSink& warn);

}  // namespace vesk::colour
