#pragma once

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/texts/Properties.h"

namespace orvlib {

/// Asks the fault point of `Metadata::getMetadataValues`.
ORV_EXPORT bool metadataValuesRefused();

/// The public class `Api` with a set of metadata.
template <class Api>
class WithMetadata : public Api {
 public:
  const Properties& metadata() const { return metadata_; }

  bool getMetadataValues(const char* key, ORV_v1::StringArray& values) const override {
    const auto* found = key && !metadataValuesRefused() ? metadata_.find(key) : nullptr;
    values.clear();
    if (found) ORV_v1::GraphAccess::textsOf(values) = *found;
    return found != nullptr;
  }
  void getMetadataKeys(ORV_v1::StringArray& keys) const override {
    ORV_v1::GraphAccess::textsOf(keys) = metadata_.keys();
  }
  ORV_v1::PropertyList getMetadata() const override {
    return ORV_v1::GraphAccess::makePropertyList(metadata_);
  }

 private:
  friend class Mutator;
  friend class NodeFactory;
  Properties metadata_;
};

}  // namespace orvlib
