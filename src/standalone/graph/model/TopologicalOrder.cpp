#include "standalone/graph/model/TopologicalOrder.h"

#include <algorithm>

namespace orvlib {

bool TopologicalOrder::insertArc(OrderedVertex& from, OrderedVertex& to) {
  if (&from == &to) return false;
  if (from.standsBefore(to)) return true;
  begin(forward_, &Arcs::nextSuccessor, to, ++lastMark_);
  begin(backward_, &Arcs::nextPredecessor, from, ++lastMark_);
  for (;;) {
    for (Search* search : {&forward_, &backward_}) {
      const Search& other = search == &forward_ ? backward_ : forward_;
      switch (step(*search, other, to.label_, from.label_)) {
        case Step::More:
          break;
        case Step::Met:
          return false;
        case Step::Exhausted:
          moveReached(*search, from, to);
          return true;
      }
    }
  }
}

void TopologicalOrder::begin(Search& search, Next next, OrderedVertex& start, std::uint64_t mark) {
  search.next = next;
  search.mark = start.mark_ = mark;
  search.reached.assign(1, &start);
  search.expanded = 0;
  search.cursor = {};
}

// Follows one arc. A vertex beyond `low` to `high` is on no path between the two ends, as every arc
// of the graph leads forward; a vertex that both searches reach is on one.
TopologicalOrder::Step TopologicalOrder::step(Search& search, const Search& other,
                                              std::uint64_t low, std::uint64_t high) const {
  OrderedVertex* found = (arcs_.*search.next)(*search.reached[search.expanded], search.cursor);
  if (!found) {
    search.cursor = {};
    return ++search.expanded == search.reached.size() ? Step::Exhausted : Step::More;
  }
  if (found->mark_ == other.mark) return Step::Met;
  if (found->mark_ != search.mark && found->label_ >= low && found->label_ <= high) {
    found->mark_ = search.mark;
    search.reached.push_back(found);
  }
  return Step::More;
}

// All that `to` leads to, as far as it stands before `from`, goes right behind `from`; or all that
// leads to `from` right before `to`. Both keep the order among themselves.
void TopologicalOrder::moveReached(Search& search, OrderedVertex& from, OrderedVertex& to) {
  auto& moved = search.reached;
  std::sort(moved.begin(), moved.end(),
            [](const OrderedVertex* a, const OrderedVertex* b) { return a->standsBefore(*b); });
  for (OrderedVertex* vertex : moved) labels_.remove(*vertex);
  labels_.insertAfter(&search == &forward_ ? &from : OrderLabels::previous(to), moved);
}

}  // namespace orvlib
