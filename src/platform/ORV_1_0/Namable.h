#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// A name or a path, in UTF-8. A graph object has a `Namable` part too, whose text is the object's
/// own name. A copy is always a value of its own, also that of such a part: a caller may extend the
/// copy that it was given without touching the object that gave it.
class ORV_EXPORT Namable {
 public:
  /// Empty text. Allocates nothing, so that an object which overrides every operation below may
  /// keep its name where it likes.
  Namable();

  /// Takes over what `getName` of the other gives.
  Namable(const Namable& other);

  /// The same as `setName` with the other's name: assigning to the part of a graph object renames
  /// that object.
  Namable& operator=(const Namable& other);
  virtual ~Namable();

  /// The text, never null, valid while this value lives unchanged.
  virtual const char* getName() const;

  /// Extends the path by one node, or by a port, with the separator that belongs there. An empty
  /// path becomes the name alone; an empty or null name changes nothing.
  virtual void appendNodeName(const char* name);
  virtual void appendPortName(const char* name);

  /// Replaces the text; null counts as empty. On a graph object it renames the object, which may
  /// end up with another name than the one asked for: read it back with `getName`.
  virtual void setName(const char* name);

 private:
  friend struct GraphAccess;
  struct Rep;
  /// Null for empty text.
  Rep* rep_ = nullptr;
};

}  // namespace ORV_v1
