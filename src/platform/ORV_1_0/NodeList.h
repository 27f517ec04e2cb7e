#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/ListIterator.h"
#include "platform/ORV_1_0/Node.h"

namespace ORV_v1 {

class Compound;

/// Nodes in order: the children of a compound, or a list that a caller fills.
class ORV_EXPORT NodeList : public ReferenceCounted {
 public:
  /// A new empty list for a caller to fill. The compound is not asked for anything; null is fine.
  static AddRefWrapper<NodeList> createNew(Compound* compound);

  /// Appends the node. False, and nothing added, for a null handle, for a node that is already in
  /// the list, and for a list that shows the children of a compound.
  bool add(AddRefWrapper<Node> node);

  unsigned int size() const;

  /// A null handle past the end.
  AddRefWrapper<Node> operator[](unsigned int index) const;

  /// The first node of that name; a null handle for an unknown or null name.
  AddRefWrapper<Node> operator[](const char* name) const;

  ListIterator<NodeList> begin() const;
  ListIterator<NodeList> end() const;

 protected:
  NodeList();
  ~NodeList() override;
};

}  // namespace ORV_v1
