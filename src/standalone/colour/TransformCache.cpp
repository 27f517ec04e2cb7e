#include "standalone/colour/TransformCache.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace vesk::colour {
namespace {

/// A single colour is cheap, and what is edited must come back as it was.
constexpr OCIO::OptimizationFlags kPrecision = OCIO::OPTIMIZATION_LOSSLESS;

OCIO::TransformRcPtr toColourSpace(const std::string& space) {
  const auto transform = OCIO::ColorSpaceTransform::Create();
  transform->setSrc(OCIO::ROLE_SCENE_LINEAR);
  transform->setDst(space.c_str());
  return transform;
}

OCIO::TransformRcPtr toView(const std::string& display, const std::string& view) {
  const auto transform = OCIO::DisplayViewTransform::Create();
  transform->setSrc(OCIO::ROLE_SCENE_LINEAR);
  transform->setDisplay(display.c_str());
  transform->setView(view.c_str());
  return transform;
}

OCIO::TransformDirection toOcio(Direction direction) {
  return direction == Direction::FromRendering ? OCIO::TRANSFORM_DIR_FORWARD
                                               : OCIO::TRANSFORM_DIR_INVERSE;
}

bool isClose(float value, float expected) {
  constexpr float kTolerance = 1e-4f;
  return std::abs(value - expected) <= kTolerance * std::max(std::abs(expected), kTolerance);
}

bool isDouble(const KColor& twice, const KColor& once) {
  return isClose(twice.r, 2 * once.r) && isClose(twice.g, 2 * once.g) &&
         isClose(twice.b, 2 * once.b);
}

}  // namespace

TransformPair::TransformPair(OCIO::ConstCPUProcessorRcPtr fromRendering,
                             OCIO::ConstCPUProcessorRcPtr toRendering)
    : fromRendering_(std::move(fromRendering)), toRendering_(std::move(toRendering)) {}

KColor TransformPair::apply(const KColor& colour, Direction direction) const {
  const auto& processor = direction == Direction::FromRendering ? fromRendering_ : toRendering_;
  if (!processor) return colour;
  float rgb[] = {colour.r, colour.g, colour.b};
  processor->applyRGB(rgb);
  return {rgb[0], rgb[1], rgb[2], colour.a};
}

bool TransformPair::isLinear() const {
  const auto light = [this](float grey) {
    return apply({grey, grey, grey}, Direction::ToRendering);
  };
  const auto isLinearAt = [&light](float grey) { return isDouble(light(2 * grey), light(grey)); };
  constexpr float kGreys[] = {0.02f, 0.18f, 0.45f};
  return std::all_of(std::begin(kGreys), std::end(kGreys), isLinearAt);
}

TransformPair TransformCache::find(const Target& target) {
  const auto& fromRendering = processor({target, Direction::FromRendering});
  return {fromRendering, processor({target, Direction::ToRendering})};
}

std::size_t TransformCache::Hash::operator()(const Key& key) const {
  const std::hash<std::string> hash;
  const std::size_t direction = key.direction == Direction::FromRendering ? 0 : 1;
  return (hash(key.target.space) * 31 + hash(key.target.view)) * 31 + direction;
}

const OCIO::ConstCPUProcessorRcPtr& TransformCache::processor(const Key& key) {
  const auto found = processors_.find(key);
  return found != processors_.end() ? found->second
                                    : processors_.emplace(key, build(key)).first->second;
}

OCIO::ConstCPUProcessorRcPtr TransformCache::build(const Key& key) const {
  const auto& [space, view] = key.target;
  const auto transform = view.empty() ? toColourSpace(space) : toView(space, view);
  return config_->getProcessor(transform, toOcio(key.direction))
      ->getOptimizedCPUProcessor(kPrecision);
}

}  // namespace vesk::colour
