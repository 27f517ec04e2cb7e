#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Annotation.h"
#include "platform/ORV_1_0/ListIterator.h"

namespace ORV_v1 {

/// Annotations in order: those of a compound, or a list that a caller fills.
class ORV_EXPORT AnnotationList : public ReferenceCounted {
 public:
  /// A new empty list for a caller to fill.
  static AddRefWrapper<AnnotationList> createNew();

  /// As `NodeList::add`.
  bool add(AddRefWrapper<Annotation> annotation);

  unsigned int size() const;

  /// A null handle past the end.
  AddRefWrapper<Annotation> operator[](unsigned int index) const;

  ListIterator<AnnotationList> begin() const;
  ListIterator<AnnotationList> end() const;

 protected:
  AnnotationList();
  ~AnnotationList() override;
};

}  // namespace ORV_v1
