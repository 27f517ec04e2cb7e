#pragma once

#include "platform/ORV_1_0/NodeLibrary.h"
#include "platform/ORV_1_0/PortDataType.h"

namespace ORV_v1 {

/// A set of port types and node libraries that graphs are built from. The library owns its
/// runtimes; a pointer to one is valid as long as the library holds it.
class ORV_EXPORT Runtime {
 public:
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  virtual ~Runtime();

  /// Reads the runtime's definitions again from where they came. What cannot be read keeps its
  /// former definitions, and what is held by a handle stays as it was.
  void forceRebuildCompounds();

  /// A null handle when the runtime has no root library.
  virtual AddRefWrapper<NodeLibrary> getRootLibrary() const;

  unsigned int getNumberOfPortTypes() const;

  /// A null handle past the end.
  AddRefWrapper<PortDataType> getPortTypeAt(unsigned int index) const;

  /// Never null, valid until the runtime is rebuilt.
  const char* getName() const;
  const char* getNiceName() const;

 private:
  friend struct GraphAccess;
  struct Rep;
  explicit Runtime(Rep* rep);
  Rep* rep_;
};

}  // namespace ORV_v1
