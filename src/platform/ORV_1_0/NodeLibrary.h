#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/NodeDefinition.h"

namespace ORV_v1 {

/// A named set of node definitions and sub-libraries, in the order of their files. A library never
/// changes: when its runtime reads its files again, a handle held from before keeps the old
/// content.
class ORV_EXPORT NodeLibrary : public ReferenceCounted {
 public:
  /// The library of that qualified name in the first runtime that has one. A null handle when there
  /// is none, or for a null name.
  static AddRefWrapper<NodeLibrary> findLibrary(const char* name);

  unsigned int getNumberOfSubLibraries() const;
  unsigned int getNumberOfNodes() const;

  /// A null handle past the end.
  AddRefWrapper<NodeLibrary> getSubLibraryAt(unsigned int index) const;
  AddRefWrapper<NodeDefinition> getNodeAt(unsigned int index) const;

  /// The qualified name, such as "core::math"; never null, valid while the library lives.
  const char* getName() const;

  /// The name to show to a user, such as "Math".
  const char* getNiceName() const;

 private:
  friend struct GraphAccess;
  struct Rep;
  explicit NodeLibrary(Rep* rep);
  ~NodeLibrary() override;
  Rep* rep_;
};

}  // namespace ORV_v1
