#include "standalone/graph/model/StateFlagsObject.h"

namespace orvlib {
namespace {

struct FlagRow {
  char key;
  const char* name;
  const char* description;
  NodeState state;
  bool on;  ///< of a new node
};

// In the order of NodeState.
constexpr FlagRow kFlags[StateFlagsObject::kCount] = {
    {'e', "Enabled", "Off: the node's outputs give the defaults of their types.",
     NodeState::Enabled, true},
    {'f', "Frozen", "On: the node keeps what it gave last, whatever comes in.", NodeState::Frozen,
     false},
    {'b', "Bypassed", "On: each output gives the first input that its type can take.",
     NodeState::Bypassed, false},
};

}  // namespace

StateFlagsObject::StateFlagsObject(const NodeObject& node) {
  for (unsigned int i = 0; i < kCount; ++i) {
    const FlagRow& row = kFlags[i];
    flags_[i].key = row.key;
    flags_[i].name = ORV_v1::GraphAccess::makeString(row.name);
    flags_[i].description = ORV_v1::GraphAccess::makeString(row.description);
    flags_[i].defaultState = row.on ? 0 : 1;
    note(i, node.is(row.state));
  }
}

unsigned int StateFlagsObject::indexOf(char key) {
  unsigned int index = 0;
  while (index < kCount && kFlags[index].key != key) ++index;
  return index;
}

char StateFlagsObject::keyOf(NodeState state) { return kFlags[static_cast<int>(state)].key; }

}  // namespace orvlib
