#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/colour/Configuration.h"
#include "standalone/colour/MixingSpace.h"
#include "standalone/colour/ScreenPicker.h"
#include "standalone/colour/TransformCache.h"

namespace vesk::colour {

struct ColourOptions {
  /// File; empty: that of the environment variable OCIO, else the shipped one.
  std::string configuration = {};
  /// Whether the environment variable counts.
  bool readsEnvironment = true;
  bool enabled = true;
  /// Empty: the messages of the current host session.
  WarningSink warn = {};
};

/// The colour management of the process: configuration, the user's choice of spaces, transforms.
///
/// The program owns one and builds it before it loads a module, since a module may ask for names
/// while it is being loaded. One service at a time is current: the one built last. For the thread
/// of the interface.
class ColourService {
 public:
  explicit ColourService(ColourOptions options = {});
  ~ColourService();
  ColourService(const ColourService&) = delete;
  ColourService& operator=(const ColourService&) = delete;

  /// Null when there is none.
  static ColourService* current();

  /// The current service if colour management is on, else null.
  static ColourService* active();

  bool isEnabled() const { return enabled_; }
  /// The choice of spaces is kept while colour management is off.
  void setEnabled(bool enabled);

  const Configuration& configuration() const { return configuration_; }
  const std::vector<MixingSpace>& mixingSpaces() const { return spaces_; }
  const MixingSpace& mixingSpace() const { return *mixing_; }

  /// What the screen is shown through: the display and view last chosen.
  const Target& screen() const { return screen_; }

  /// On any status but success the old choice stays and a warning tells why: `StatusBadArgument`
  /// for an unknown name, `StatusFailure` when the configuration cannot lead there and back.
  KStatus setMixingSpace(std::string_view name);
  KStatus setView(std::string_view name);

  KColor applyMixing(const KColor& colour, Direction direction) const;
  KColor applyView(const KColor& colour, Direction direction) const;

  /// See `KColorMixingSpaceHelper`.
  float mixingToSlider(float value, float minimum, float maximum) const;
  float sliderToMixing(float position, float minimum, float maximum) const;

  /// Called after each change of what colours look like: switch, space or view.
  void setChangeListener(std::function<void()> listener) { changed_ = std::move(listener); }

  /// The picker is borrowed; whoever sets it takes it away, with null, before it goes.
  void setScreenPicker(ScreenPicker* picker) { picker_ = picker; }

  /// A colour from the screen, in the rendering space if colour management is on. Nothing when the
  /// user cancelled or there is no picker.
  std::optional<KColor> grabScreenColour() const;

 private:
  MixingSpace* findSpace(std::string_view name);
  void chooseFirstScreen();
  void chooseFirstSpace();
  KStatus choose(MixingSpace& space, const std::string& view);
  std::optional<TransformPair> findTransforms(const Target& target);
  void warn(const std::string& text) const;
  void tellChange() const;
  std::string configurationName() const;

  WarningSink warningSink_;
  bool enabled_;
  Configuration configuration_;
  TransformCache cache_;
  std::vector<MixingSpace> spaces_;  ///< never empty, never resized
  MixingSpace* mixing_;              ///< one of `spaces_`
  TransformPair mixingTransforms_;
  bool mixingIsLinear_ = true;
  Target screen_;
  TransformPair screenTransforms_;
  ScreenPicker* picker_ = nullptr;
  std::function<void()> changed_;
  ColourService* previous_;
};

}  // namespace vesk::colour
