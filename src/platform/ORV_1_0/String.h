#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// The library's string, in UTF-8. An empty one costs a pointer.
class ORV_EXPORT String {
 public:
  String();
  String(const String& other);
  String& operator=(const String& other);
  ~String();

  /// The text, never null, valid while this string lives unchanged.
  const char* toChar() const;

  bool empty() const;

 private:
  friend struct GraphAccess;
  struct Rep;
  /// Null for empty text.
  Rep* rep_ = nullptr;
};

}  // namespace ORV_v1
