#pragma once

#include <cstdint>
#include <span>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

class OrderLabels;
class TopologicalOrder;

/// The base of what a TopologicalOrder keeps in order. It belongs to one order at a time, and does
/// not move in memory while it does.
class OrderedVertex {
 public:
  OrderedVertex() = default;
  OrderedVertex(const OrderedVertex&) = delete;
  OrderedVertex& operator=(const OrderedVertex&) = delete;

  /// Whether this one stands before `other` in their order.
  bool standsBefore(const OrderedVertex& other) const { return label_ < other.label_; }

 protected:
  ~OrderedVertex() = default;

 private:
  friend class OrderLabels;
  friend class TopologicalOrder;

  OrderedVertex* previous_ = nullptr;
  OrderedVertex* next_ = nullptr;
  std::uint64_t label_ = 0;
  std::uint64_t mark_ = 0;  ///< Of the last search that came by.
};

/// A list of vertices whose labels rise from its first to its last, so that two are compared at
/// once. Adding a vertex takes logarithmic time, amortised: where two labels leave no room between
/// them, the vertices of a neighbourhood that is thin enough are spread over it.
class ORV_EXPORT OrderLabels {
 public:
  unsigned size() const { return size_; }
  OrderedVertex* first() const { return first_; }
  static OrderedVertex* next(const OrderedVertex& vertex) { return vertex.next_; }
  static OrderedVertex* previous(const OrderedVertex& vertex) { return vertex.previous_; }

  /// After `place`; before all if that is null.
  void insertAfter(OrderedVertex* place, OrderedVertex& vertex);
  /// Likewise, all in this order.
  void insertAfter(OrderedVertex* place, std::span<OrderedVertex* const> vertices);
  void append(OrderedVertex& vertex) { insertAfter(last_, vertex); }
  void remove(OrderedVertex& vertex);

 private:
  void link(OrderedVertex* place, OrderedVertex& vertex);
  bool makeLabel(const OrderedVertex* before, const OrderedVertex* after,
                 std::uint64_t& label) const;
  void spreadAround(OrderedVertex& vertex);

  OrderedVertex* first_ = nullptr;
  OrderedVertex* last_ = nullptr;
  unsigned size_ = 0;
};

}  // namespace orvlib
