#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// A change bracket that is open while this value lives. `Container::makeChangeBracket` makes it;
/// it may outlive its container.
class ORV_EXPORT ChangeBracket {
 public:
  ChangeBracket(ChangeBracket&& other) noexcept;
  ChangeBracket& operator=(ChangeBracket&&) = delete;
  virtual ~ChangeBracket();

 private:
  friend struct GraphAccess;
  struct Rep;
  explicit ChangeBracket(Rep* rep);
  Rep* rep_;
};

}  // namespace ORV_v1
