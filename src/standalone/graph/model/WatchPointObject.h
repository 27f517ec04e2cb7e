#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/WatchPoint.h"
#include "standalone/graph/model/Handles.h"
#include "standalone/graph/model/WithMetadata.h"
#include "standalone/graph/types/Value.h"

namespace orvlib {

/// How a watch point is set up.
struct ORV_EXPORT WatchPointSetup {
  bool enabled = true;

  /// "all": every evaluation is recorded. "changes": those that gave another value.
  bool changesOnly = false;

  /// How many evaluations are kept, the latest ones; at least 1.
  std::uint32_t limit = 100;

  bool operator==(const WatchPointSetup&) const = default;

  /// Sets the parameter of that name: "record", "limit". False, and nothing set, for an unknown
  /// name or a value that it does not take.
  bool set(std::string_view name, std::string_view value);

  /// The value of the parameter of that name; empty for an unknown one.
  std::string get(std::string_view name) const;
};

/// What the library knows of a watch point.
class ORV_EXPORT WatchPointObject final : public WithMetadata<ORV_v1::WatchPoint> {
 public:
  const WatchPointSetup& setup() const { return setup_; }

  /// Null when it is on no port.
  PortObject* port() const { return port_; }

  /// Whether it waits for the first record since it came to its port or was enabled.
  bool isDue() const { return due_; }

  /// Notes what the port gave at the evaluation of that number, as `setup` says.
  void record(std::uint64_t evaluation, const Value& value);

  bool isEnabled() override { return setup_.enabled; }
  bool getParameterNames(ORV_v1::StringArray& names) override;
  bool getParameterValues(const char* name, ORV_v1::StringArray& values) override;
  bool getParameterDescription(const char* name, ORV_v1::String& description) override;
  bool getParameterValueDescription(const char* name, const char* value,
                                    ORV_v1::String& description) override;
  bool getParameterValue(const char* name, ORV_v1::String& value) override;
  bool getRecordNames(ORV_v1::StringArray& names) override;
  bool clearRecordedValues() override;
  bool getRecordedValues(const char* name, ORV_v1::StringArray& values) override;

 private:
  friend class Mutator;
  friend class PortObject;
  struct Record {
    std::uint64_t evaluation;
    Value value;
  };

  PortObject* port_ = nullptr;
  bool due_ = false;
  WatchPointSetup setup_;
  std::deque<Record> records_;
};

}  // namespace orvlib
