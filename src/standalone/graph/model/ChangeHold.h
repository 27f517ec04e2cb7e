#pragma once

#include "standalone/graph/model/ContainerObject.h"

namespace orvlib {

/// A change bracket of the library's own, around one of its operations.
class ChangeHold {
 public:
  explicit ChangeHold(ContainerObject& container) : container_(container) {
    ++container_.brackets_;
  }
  ChangeHold(const ChangeHold&) = delete;
  ChangeHold& operator=(const ChangeHold&) = delete;
  ~ChangeHold() { container_.release(); }

 private:
  ContainerObject& container_;
};

}  // namespace orvlib
