#pragma once

#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/ReferenceCounted.h"

namespace ORV_v1 {

/// The type of the values that a port carries. Its `Namable` part gives the type's name, such as
/// "float" or "array<float>".
class ORV_EXPORT PortDataType : public ReferenceCounted, public Namable {
 public:
  /// The name to show to a user, valid while this object lives.
  const char* getNiceName() const;

  const char* getName() const override;

  /// A type keeps its name: on the type itself these do nothing. A copy of its `Namable` part can
  /// be changed like any other.
  void appendNodeName(const char* name) override;
  void appendPortName(const char* name) override;
  void setName(const char* name) override;

 private:
  friend struct GraphAccess;
  struct Rep;
  explicit PortDataType(Rep* rep);
  ~PortDataType() override;
  Rep* rep_;
};

}  // namespace ORV_v1
