#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/ListIterator.h"
#include "platform/ORV_1_0/Port.h"

namespace ORV_v1 {

/// Ports in order: those of a node, of a compound, of another port, or the far ends of connections.
class ORV_EXPORT PortList : public ReferenceCounted {
 public:
  static constexpr unsigned int kNotFound = ~0u;

  unsigned int size() const;

  /// A null handle past the end.
  AddRefWrapper<Port> operator[](unsigned int index) const;

  /// The first port of that name; a null handle for an unknown or null name.
  AddRefWrapper<Port> operator[](const char* name) const;

  /// The index of the port, or `kNotFound`.
  unsigned int findPort(AddRefWrapper<Port> port) const;

  ListIterator<PortList> begin() const;
  ListIterator<PortList> end() const;

 protected:
  PortList();
  ~PortList() override;
};

}  // namespace ORV_v1
