#pragma once

#include <string_view>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

namespace detail {
/// Whether a fault point is armed: what an inert one reads, and all it does.
ORV_EXPORT extern int faultPointsArmed;
}  // namespace detail

/// A place where an operation can be made to say false, although it could do its work. An operation
/// asks before it changes anything. Fault points are static objects; the name has static lifetime.
class ORV_EXPORT FaultPoint {
 public:
  explicit FaultPoint(const char* name);
  ~FaultPoint();
  FaultPoint(const FaultPoint&) = delete;
  FaultPoint& operator=(const FaultPoint&) = delete;

  /// Whether the operation is to refuse this time. Always false while nothing is armed.
  bool refuses() const { return detail::faultPointsArmed != 0 && refusesArmed(); }

 private:
  friend class FaultPoints;

  bool refusesArmed() const;

  std::string_view name_;
  FaultPoint* next_;
};

/// For tests: has fault points refuse. One is armed at a time. Not for several threads.
class ORV_EXPORT FaultPoints {
 public:
  /// Those there are, each once, in alphabetical order.
  static std::vector<std::string_view> names();

  /// The `nth` asking of this name from now on is refused, and no other. False, and nothing is
  /// armed, if there is no fault point of that name or `nth` is 0.
  [[nodiscard]] static bool arm(std::string_view name, unsigned nth = 1);
  /// Likewise of any name. With an `nth` that is never reached, it only counts.
  static void armAny(unsigned nth);
  static void disarm();

  /// How often what is armed was asked since then, refusals included. Stays until the next arming.
  static unsigned asked();

  /// The names that were asked since any was armed, in that order; none after arming one by name.
  static const std::vector<std::string_view>& askedNames();
  /// Whether the refusal that was armed has happened.
  static bool refused();
};

/// Arms while it lives.
class ORV_EXPORT ArmedFault {
 public:
  explicit ArmedFault(std::string_view name, unsigned nth = 1)
      : isArmed_(FaultPoints::arm(name, nth)) {}
  /// Any fault point.
  explicit ArmedFault(unsigned nth) : isArmed_(true) { FaultPoints::armAny(nth); }
  ~ArmedFault() { FaultPoints::disarm(); }
  ArmedFault(const ArmedFault&) = delete;
  ArmedFault& operator=(const ArmedFault&) = delete;

  /// False if there is no fault point of the name.
  bool isArmed() const { return isArmed_; }
  unsigned asked() const { return FaultPoints::asked(); }
  bool refused() const { return FaultPoints::refused(); }

 private:
  bool isArmed_;
};

}  // namespace orvlib
