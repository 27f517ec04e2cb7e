#pragma once

#include <string>
#include <vector>

#include "tests/commands/compound/CompoundTesting.h"

/// Connects the ports of these paths.
inline void connect(ORV_v1::Container& graph, const char* source, const char* target) {
  ORV_v1::AddRefWrapper<ORV_v1::Port> from, to;
  ASSERT_TRUE(graph.findPortsForConnection(source, target, &from, &to)) << source << ' ' << target;
  ASSERT_TRUE(from->addConnection(to, false)) << source << ' ' << target;
}
