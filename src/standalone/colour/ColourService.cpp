#include "standalone/colour/ColourService.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "standalone/colour/SliderScale.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/language/Utf8.h"

namespace vesk::colour {
namespace {

ColourService* currentService = nullptr;

void warnUser(const std::string& text) {
  if (HostSession* session = HostSession::current()) return session->messages().warning(text);
  std::cerr << "Warning: " << text << std::endl;
}

std::string pathOf(const ColourOptions& options) {
  return options.readsEnvironment ? configurationPath(options.configuration)
                                  : options.configuration;
}

std::string quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

std::string describe(const Target& target) {
  const bool isSpace = target.view.empty();
  return isSpace ? "The colour space " + quoted(target.space)
                 : "The view " + quoted(target.view) + " of the display " + quoted(target.space);
}

}  // namespace

ColourService::ColourService(ColourOptions options)
    : warningSink_(options.warn ? std::move(options.warn) : warnUser),
      enabled_(options.enabled),
      configuration_(loadConfiguration(pathOf(options), warningSink_)),
      cache_(configuration_.config),
      spaces_(listMixingSpaces(*configuration_.config)),
      mixing_(&spaces_.front()),
      previous_(std::exchange(currentService, this)) {
  chooseFirstScreen();
  chooseFirstSpace();
}

ColourService::~ColourService() { currentService = previous_; }

ColourService* ColourService::current() { return currentService; }

ColourService* ColourService::active() {
  return currentService && currentService->enabled_ ? currentService : nullptr;
}

void ColourService::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  tellChange();
}

KStatus ColourService::setMixingSpace(std::string_view name) {
  if (MixingSpace* space = findSpace(name)) return choose(*space, space->view);
  warn("There is no mixing space " + quoted(name) + " in " + configurationName());
  return StatusBadArgument;
}

KStatus ColourService::setView(std::string_view name) {
  if (!mixing_->hasViews()) {
    warn("The mixing space " + quoted(mixing_->name) + " has no views to choose " + quoted(name) +
         " from");
    return StatusFailure;
  }
  const auto& views = mixing_->views;
  const auto view = std::find(views.begin(), views.end(), name);
  if (view != views.end()) return choose(*mixing_, *view);
  warn("The display " + quoted(mixing_->name) + " has no view " + quoted(name) + " in " +
       configurationName());
  return StatusBadArgument;
}

KColor ColourService::applyMixing(const KColor& colour, Direction direction) const {
  return mixingTransforms_.apply(colour, direction);
}

KColor ColourService::applyView(const KColor& colour, Direction direction) const {
  return screenTransforms_.apply(colour, direction);
}

float ColourService::mixingToSlider(float value, float minimum, float maximum) const {
  return mixingIsLinear_ ? lightToSlider(value, minimum, maximum) : value;
}

float ColourService::sliderToMixing(float position, float minimum, float maximum) const {
  return mixingIsLinear_ ? sliderToLight(position, minimum, maximum) : position;
}

std::optional<KColor> ColourService::grabScreenColour() const {
  const auto colour = picker_ ? picker_->pick() : std::nullopt;
  if (!colour || !enabled_) return colour;
  return applyView(*colour, Direction::ToRendering);
}

MixingSpace* ColourService::findSpace(std::string_view name) {
  const auto space = std::find_if(spaces_.begin(), spaces_.end(),
                                  [name](const MixingSpace& entry) { return entry.name == name; });
  return space != spaces_.end() ? &*space : nullptr;
}

void ColourService::chooseFirstScreen() {
  const char* display = configuration_.config->getDefaultDisplay();
  screen_ = {display, configuration_.config->getDefaultView(display)};
  if (const auto transforms = findTransforms(screen_)) screenTransforms_ = *transforms;
}

void ColourService::chooseFirstSpace() {
  for (const std::string& name : preferredMixingSpaces(*configuration_.config)) {
    MixingSpace* space = findSpace(name);
    if (space && choose(*space, space->view)) return;
  }
  choose(spaces_.front(), "");
}

KStatus ColourService::choose(MixingSpace& space, const std::string& view) {
  const Target target{space.name, view};
  const auto transforms = findTransforms(target);
  if (!transforms) return StatusFailure;
  mixing_ = &space;
  mixing_->view = view;
  mixingTransforms_ = *transforms;
  mixingIsLinear_ = transforms->isLinear();
  if (space.hasViews()) {
    screen_ = target;
    screenTransforms_ = *transforms;
  }
  tellChange();
  return StatusSuccess;
}

std::optional<TransformPair> ColourService::findTransforms(const Target& target) {
  try {
    return cache_.find(target);
  } catch (const std::exception& error) {
    warn(describe(target) + " cannot be used in " + configurationName() + ": " + error.what());
  }
  return std::nullopt;
}

void ColourService::warn(const std::string& text) const { warningSink_(utf8::repaired(text)); }

void ColourService::tellChange() const {
  if (changed_) changed_();
}

std::string ColourService::configurationName() const {
  const std::string& path = configuration_.path;
  return path.empty() ? "the shipped colour configuration" : "colour configuration " + quoted(path);
}

}  // namespace vesk::colour
