#include "platform/ORV_1_0/Annotation.h"

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/texts/ListText.h"

namespace ORV_v1 {
namespace {

const orvlib::AnnotationObject& object(const Annotation& annotation) {
  return static_cast<const orvlib::AnnotationObject&>(annotation);
}

}  // namespace

Annotation::Annotation() = default;
Annotation::~Annotation() = default;

String Annotation::getAnnotationMetaDataValue(const char* key) {
  return GraphAccess::makeMetadataText(object(*this).metadata(), key);
}

bool Annotation::isStickyNote() const {
  return object(*this).kind() == orvlib::AnnotationKind::StickyNote;
}

AddRefWrapper<Compound> Annotation::getParentCompound() {
  return AddRefWrapper<Compound>(object(*this).parent());
}

String GraphAccess::makeMetadataText(const orvlib::Properties& metadata, const char* key) {
  const auto* values = key ? metadata.find(key) : nullptr;
  if (!values) return String();
  return makeString(values->size() == 1 ? values->front() : orvlib::writeList(*values));
}

}  // namespace ORV_v1
