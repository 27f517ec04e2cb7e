#include "platform/ORV_1_0/Metadata.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/WithMetadata.h"

namespace orvlib {
namespace {

FaultPoint kGetValues("Metadata getMetadataValues");

}  // namespace

bool metadataValuesRefused() { return kGetValues.refuses(); }

}  // namespace orvlib

namespace ORV_v1 {

Metadata::Metadata() = default;
Metadata::~Metadata() = default;

}  // namespace ORV_v1
