#pragma once

#include <cstdint>

#include "platform/ORV_1_0/OptionalStringArray.h"
#include "platform/ORV_1_0/PropertyList.h"

namespace ORV_v1 {

/// What a new port is created with. A value: no flags, no options and no default values of its own
/// at construction.
class ORV_EXPORT PortProperties {
 public:
  PortProperties();
  PortProperties(const PortProperties& other);
  PortProperties& operator=(const PortProperties& other);
  ~PortProperties();

  /// The flag bits of the port.
  std::uint32_t getFlags() const;
  void setFlags(std::uint32_t flags);

  /// The port's metadata; valid while the properties live.
  const PropertyList& options() const;
  PropertyList& options();

  /// One text a component; absent for the default of the port's type. Valid while the properties
  /// live.
  const OptionalStringArray& defaultValues() const;
  OptionalStringArray& defaultValues();

 private:
  friend struct GraphAccess;
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
