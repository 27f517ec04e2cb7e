#include "standalone/graph/model/OrderLabels.h"

#include <algorithm>

namespace orvlib {
namespace {

constexpr unsigned kLabelBits = 62;
constexpr std::uint64_t kLabelEnd = std::uint64_t{1} << kLabelBits;
// What an end of the list keeps free beside it: half of all labels are there for 2^29 appended
// ones.
constexpr std::uint64_t kEndGap = std::uint64_t{1} << 32;
// A neighbourhood of 2^i labels is thin enough with less than (2 / kCrowding)^i vertices. All
// labels are then enough for 2^32 of them.
constexpr double kCrowding = 1.4;

}  // namespace

// False where there is no label between the two.
bool OrderLabels::makeLabel(const OrderedVertex* before, const OrderedVertex* after,
                            std::uint64_t& label) const {
  // The labels in question begin at `low` and end before `high`.
  const std::uint64_t low = before ? before->label_ + 1 : 0;
  const std::uint64_t high = after ? after->label_ : kLabelEnd;
  if (low >= high) return false;
  const std::uint64_t half = (high - low) / 2;
  if (before && !after) {
    label = low + std::min(half, kEndGap);
  } else if (after && !before) {
    label = high - 1 - std::min(half, kEndGap);
  } else {
    label = low + half;
  }
  return true;
}

void OrderLabels::insertAfter(OrderedVertex* place, OrderedVertex& vertex) {
  OrderedVertex* after = place ? place->next_ : first_;
  if (!makeLabel(place, after, vertex.label_)) {
    spreadAround(place ? *place : *after);
    makeLabel(place, after, vertex.label_);
  }
  link(place, vertex);
}

// Even distances, where there is room for all: halves of halves would soon use up the room.
void OrderLabels::insertAfter(OrderedVertex* place, std::span<OrderedVertex* const> vertices) {
  const OrderedVertex* after = place ? place->next_ : first_;
  const std::uint64_t low = place ? place->label_ : 0;
  const std::uint64_t high = after ? after->label_ : kLabelEnd;
  const std::uint64_t parts = vertices.size() + 1;
  std::uint64_t distance = (high - low) / parts;
  if (!place || !after) distance = std::min(distance, kEndGap);
  std::uint64_t label = place ? low : high - distance * parts;
  for (OrderedVertex* vertex : vertices) {
    if (distance == 0) {
      insertAfter(place, *vertex);
    } else {
      vertex->label_ = label += distance;
      link(place, *vertex);
    }
    place = vertex;
  }
}

void OrderLabels::link(OrderedVertex* place, OrderedVertex& vertex) {
  OrderedVertex* after = place ? place->next_ : first_;
  vertex.previous_ = place;
  vertex.next_ = after;
  (place ? place->next_ : first_) = &vertex;
  (after ? after->previous_ : last_) = &vertex;
  ++size_;
}

void OrderLabels::remove(OrderedVertex& vertex) {
  (vertex.previous_ ? vertex.previous_->next_ : first_) = vertex.next_;
  (vertex.next_ ? vertex.next_->previous_ : last_) = vertex.previous_;
  vertex.previous_ = vertex.next_ = nullptr;
  --size_;
}

// Widens the neighbourhood, a range of labels that are alike in their upper bits, until it is thin
// enough, and gives its vertices labels at even distances. The distances are 2 or more, so that
// there is room beside each.
void OrderLabels::spreadAround(OrderedVertex& vertex) {
  OrderedVertex* begin = &vertex;
  OrderedVertex* end = vertex.next_;
  std::uint64_t count = 1;
  std::uint64_t low = vertex.label_;
  std::uint64_t width = 1;
  double enough = 1;
  do {
    width *= 2;
    enough *= 2 / kCrowding;
    low &= ~(width - 1);
    for (; begin->previous_ && begin->previous_->label_ >= low; ++count) begin = begin->previous_;
    for (; end && end->label_ < low + width; ++count) end = end->next_;
  } while (static_cast<double>(count) >= enough || width < 4 * count);

  const std::uint64_t distance = width / count;
  std::uint64_t label = low + distance / 2;
  for (OrderedVertex* v = begin; v != end; v = v->next_, label += distance) v->label_ = label;
}

}  // namespace orvlib
