#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {

/// How a watch point is set up.
struct ORV_EXPORT WatchPointSetup {
  bool enabled = true;

  /// "all": every evaluation is recorded. "changes": those that gave another value.
  bool changesOnly = false;

  /// How many evaluations are kept, the latest ones; at least 1.
  std::uint32_t limit = 100;

  /// How recorded values are shown.
  FloatForm form;

  bool operator==(const WatchPointSetup&) const = default;

  /// Sets the parameter of that name. False, and nothing set, for an unknown name or a value that
  /// it does not take.
  bool set(std::string_view name, std::string_view value);

  /// The value of the parameter of that name; empty for an unknown one.
  std::string get(std::string_view name) const;
};

/// A value that a parameter lists.
struct WatchPointChoice {
  const char* value;
  const char* description;
};

/// A parameter of watch points.
struct WatchPointParameter {
  const char* name;
  const char* description;

  /// None for a number.
  std::span<const WatchPointChoice> choices;

  /// False, and nothing set, for a value that it does not take.
  bool (*set)(WatchPointSetup& setup, std::string_view value);
  std::string (*get)(const WatchPointSetup& setup);
};

/// All there are, in the order in which they are listed.
ORV_EXPORT std::span<const WatchPointParameter> watchPointParameters();

/// Null for an unknown name.
ORV_EXPORT const WatchPointParameter* findWatchPointParameter(std::string_view name);

}  // namespace orvlib
