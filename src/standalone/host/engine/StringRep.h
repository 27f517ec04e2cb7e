#pragma once

#include <atomic>
#include <string>

#include "platform/OpenVesk/KString.h"

/// The shared text of a `KString`; it changes only while one string holds it.
struct KString::Rep {
  explicit Rep(std::string text) : utf8(std::move(text)) {}

  std::atomic<unsigned> references{1};
  std::string utf8;
  std::string narrow;  ///< what `asChar` gave last, when that is not `utf8`
};
