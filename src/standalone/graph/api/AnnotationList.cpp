#include "platform/ORV_1_0/AnnotationList.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/CompoundObject.h"

namespace ORV_v1 {
namespace {

using orvlib::AnnotationListObject;
using orvlib::AnnotationObject;
using orvlib::ListKind;

orvlib::FaultPoint kAdd("AnnotationList add");

const AnnotationListObject& object(const AnnotationList& list) {
  return static_cast<const AnnotationListObject&>(list);
}

}  // namespace

AnnotationList::AnnotationList() = default;
AnnotationList::~AnnotationList() = default;

AddRefWrapper<AnnotationList> AnnotationList::createNew() {
  return AddRefWrapper<AnnotationList>(new AnnotationListObject(ListKind::Collected));
}

bool AnnotationList::add(AddRefWrapper<Annotation> annotation) {
  auto& list = static_cast<AnnotationListObject&>(*this);
  auto* item = static_cast<AnnotationObject*>(annotation.get());
  if (kAdd.refuses() || !item) return false;
  if (list.kind() != ListKind::Collected || list.contains(item)) return false;
  list.append(item);
  return true;
}

unsigned int AnnotationList::size() const { return object(*this).count(); }

AddRefWrapper<Annotation> AnnotationList::operator[](unsigned int index) const {
  return AddRefWrapper<Annotation>(object(*this).at(index));
}

ListIterator<AnnotationList> AnnotationList::begin() const { return {*this, 0}; }

ListIterator<AnnotationList> AnnotationList::end() const { return {*this, size()}; }

}  // namespace ORV_v1
