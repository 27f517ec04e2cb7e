#pragma once

#include <string>
#include <unordered_map>

#include "platform/OpenVeskRender/KColor.h"
#include "standalone/colour/Configuration.h"

namespace vesk::colour {

enum class Direction { FromRendering, ToRendering };

/// Where a transform leads: a colour space, or a view of a display.
struct Target {
  std::string space;  ///< or the display
  std::string view;   ///< empty for a colour space

  bool operator==(const Target& other) const = default;
};

/// Both ways between the rendering space and a target; leaves colours as they are when
/// default-built.
class TransformPair {
 public:
  TransformPair() = default;
  TransformPair(OCIO::ConstCPUProcessorRcPtr fromRendering,
                OCIO::ConstCPUProcessorRcPtr toRendering);

  /// Alpha stays.
  KColor apply(const KColor& colour, Direction direction) const;

  /// Whether twice the light is twice the number in the target.
  bool isLinear() const;

 private:
  OCIO::ConstCPUProcessorRcPtr fromRendering_;
  OCIO::ConstCPUProcessorRcPtr toRendering_;
};

/// The processors of a configuration, each built once. For one thread at a time.
class TransformCache {
 public:
  explicit TransformCache(OCIO::ConstConfigRcPtr config) : config_(std::move(config)) {}

  /// Throws `OCIO::Exception` when the configuration cannot lead there and back.
  TransformPair find(const Target& target);

  /// Processors built so far.
  std::size_t size() const { return processors_.size(); }

 private:
  struct Key {
    Target target;
    Direction direction;
    bool operator==(const Key& other) const = default;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const;
  };

  const OCIO::ConstCPUProcessorRcPtr& processor(const Key& key);
  OCIO::ConstCPUProcessorRcPtr build(const Key& key) const;

  OCIO::ConstConfigRcPtr config_;
  std::unordered_map<Key, OCIO::ConstCPUProcessorRcPtr, Hash> processors_;
};

}  // namespace vesk::colour
