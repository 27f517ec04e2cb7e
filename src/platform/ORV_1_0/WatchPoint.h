#pragma once

#include "platform/ORV_1_0/Metadata.h"
#include "platform/ORV_1_0/ReferenceCounted.h"
#include "platform/ORV_1_0/String.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

/// A probe on a port, which records what the port yields at each evaluation. A false result means
/// that the question has no answer; the out-argument is unchanged then. Else an array is replaced.
class ORV_EXPORT WatchPoint : public ReferenceCounted, public Metadata {
 public:
  virtual bool isEnabled() = 0;
  virtual bool getParameterNames(StringArray& names) = 0;

  /// The values that a parameter can take; an empty array for one that takes any number.
  virtual bool getParameterValues(const char* name, StringArray& values) = 0;
  virtual bool getParameterDescription(const char* name, String& description) = 0;
  virtual bool getParameterValueDescription(const char* name, const char* value,
                                            String& description) = 0;
  virtual bool getParameterValue(const char* name, String& value) = 0;

  /// The names that `getRecordedValues` knows.
  virtual bool getRecordNames(StringArray& names) = 0;

  /// Forgets what has been recorded. False for a watch point that is on no port.
  virtual bool clearRecordedValues() = 0;

  /// What has been recorded under a name, the oldest first.
  virtual bool getRecordedValues(const char* name, StringArray& values) = 0;

 protected:
  WatchPoint();
  ~WatchPoint() override;
};

}  // namespace ORV_v1
