#pragma once

#include <stdlib.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "platform/OpenVeskRender/KColor.h"
#include "standalone/colour/ColourService.h"

/// For the messages of a failing test.
inline void PrintTo(const KColor& colour, std::ostream* out) {
  *out << std::setprecision(9) << '(' << colour.r << ", " << colour.g << ", " << colour.b << ", "
       << colour.a << ')';
}

namespace vesk::colour::testing {

/// Collects warnings.
struct WarningLog {
  std::vector<std::string> texts;

  WarningSink sink() {
    return [this](const std::string& text) { texts.push_back(text); };
  }
};

/// A folder that goes with the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "vesk-colour-XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string path() const { return path_; }

  /// Writes a file and gives its path.
  std::string write(const std::string& name, const std::string& text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

/// A configuration that suits the test, from its text.
inline OCIO::ConstConfigRcPtr parse(const std::string& text) {
  std::istringstream stream(text);
  return OCIO::Config::CreateFromStream(stream);
}

/// A small, plain configuration: no categories, a display that shares its name with a colour space,
/// a space and a view whose file is missing, and a default display that can be used.
inline const char* const kPlainConfiguration = R"(ocio_profile_version: 1
search_path: luts
strictparsing: true
roles:
  scene_linear: Light
  default: Light
displays:
  Monitor:
    - !<View> {name: Plain, colorspace: Code}
    - !<View> {name: Lost, colorspace: Broken}
  Code:
    - !<View> {name: Plain, colorspace: Code}
colorspaces:
  - !<ColorSpace>
    name: Numbers
    isdata: true
  - !<ColorSpace>
    name: Code
    isdata: false
    to_reference: !<ExponentTransform> {value: [2.0, 2.0, 2.0, 1.0]}
  - !<ColorSpace>
    name: Light
    isdata: false
  - !<ColorSpace>
    name: Broken
    isdata: false
    to_reference: !<FileTransform> {src: missing.spi1d}
)";

/// The same without the role that every transform starts from.
inline std::string withoutSceneLinear() {
  std::string text = kPlainConfiguration;
  const std::string role = "  scene_linear: Light\n";
  return text.erase(text.find(role), role.size());
}

/// The same colours each time.
inline std::vector<KColor> randomColours(float lowest, float highest, int count = 1000) {
  std::mt19937 engine(20240117);
  std::uniform_real_distribution<float> component(lowest, highest);
  std::uniform_real_distribution<float> alpha(0.0f, 1.0f);
  std::vector<KColor> colours;
  for (int i = 0; i < count; ++i) {
    const float red = component(engine), green = component(engine), blue = component(engine);
    colours.emplace_back(red, green, blue, alpha(engine));
  }
  return colours;
}

/// The largest difference of a component, relative to the largest component.
inline float relativeError(const KColor& colour, const KColor& expected) {
  const float largest =
      std::max({std::abs(expected.r), std::abs(expected.g), std::abs(expected.b), 1e-6f});
  const float error = std::max({std::abs(colour.r - expected.r), std::abs(colour.g - expected.g),
                                std::abs(colour.b - expected.b), std::abs(colour.a - expected.a)});
  return error / largest;
}

/// Components that trouble careless arithmetic, in all combinations.
inline std::vector<KColor> hostileColours() {
  using Limits = std::numeric_limits<float>;
  const float values[] = {0.0f,
                          -0.0f,
                          -1.0f,
                          1e-45f,
                          Limits::max(),
                          Limits::lowest(),
                          Limits::infinity(),
                          -Limits::infinity(),
                          Limits::quiet_NaN()};
  std::vector<KColor> colours;
  for (float r : values) {
    for (float g : values) {
      for (float b : values) colours.emplace_back(r, g, b, r);
    }
  }
  return colours;
}

}  // namespace vesk::colour::testing
