#pragma once

#include "platform/ORV_1_0/ReferenceCounted.h"

namespace ORV_v1 {

/// What a kind of node is. The texts are never null and are valid while the definition lives.
class ORV_EXPORT NodeDefinition : public ReferenceCounted {
 public:
  /// The qualified type name, such as "core::math::add".
  const char* getName() const;

  /// The name to show to a user, such as "Add".
  const char* getNiceName() const;

 private:
  friend struct GraphAccess;
  struct Rep;
  explicit NodeDefinition(Rep* rep);
  ~NodeDefinition() override;
  Rep* rep_;
};

}  // namespace ORV_v1
