#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Metadata.h"
#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/ReferenceCounted.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

class Compound;

/// A backdrop or a sticky note of a compound. Its `Namable` part gives its name, and setting it
/// there renames it, as for a node.
class ORV_EXPORT Annotation : public ReferenceCounted, public Namable, public Metadata {
 public:
  /// The values of a key, as list text when there are several; empty when there is no such key.
  String getAnnotationMetaDataValue(const char* key);

  bool isStickyNote() const;

  /// Null for an annotation that is not in a graph.
  AddRefWrapper<Compound> getParentCompound();

 protected:
  Annotation();
  ~Annotation() override;
};

}  // namespace ORV_v1
