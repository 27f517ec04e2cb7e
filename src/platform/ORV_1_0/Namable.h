#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// A name or a path, in UTF-8. A copy is a value of its own: a caller may extend the copy that it
/// was given without touching the object that gave it.
class ORV_EXPORT Namable {
 public:
  Namable();
  Namable(const Namable& other);
  Namable& operator=(const Namable& other);
  virtual ~Namable();

  /// The text, never null, valid while this value lives unchanged.
  virtual const char* getName() const;

  /// Extends the path by one node, or by a port, with the separator that belongs there. An empty
  /// path becomes the name alone; an empty or null name changes nothing.
  virtual void appendNodeName(const char* name);
  virtual void appendPortName(const char* name);

 private:
  friend struct GraphAccess;
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
