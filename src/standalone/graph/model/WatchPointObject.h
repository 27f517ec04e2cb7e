#pragma once

#include <cstdint>

#include "platform/ORV_1_0/WatchPoint.h"
#include "standalone/graph/model/Handles.h"
#include "standalone/graph/model/Ring.h"
#include "standalone/graph/model/WatchPointSetup.h"
#include "standalone/graph/model/WithMetadata.h"
#include "standalone/graph/types/Value.h"

namespace orvlib {

/// What the library knows of a watch point.
class ORV_EXPORT WatchPointObject final : public WithMetadata<ORV_v1::WatchPoint> {
 public:
  struct Record {
    std::uint64_t evaluation;
    Value value;
  };

  const WatchPointSetup& setup() const { return setup_; }

  /// Null when it is on no port.
  PortObject* port() const { return port_; }

  /// Whether it waits for the first record since it came to its port or was enabled.
  bool isDue() const { return due_; }

  /// What it holds. After the limit was lowered these may be more than are shown.
  const Ring<Record>& records() const { return records_; }

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

  PortObject* port_ = nullptr;
  bool due_ = false;
  WatchPointSetup setup_;
  Ring<Record> records_;
};

}  // namespace orvlib
