#pragma once

#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/Node.h"
#include "tests/support/HostTest.h"

/// Those of the compounds of these paths that have a change bracket open; "graph" when none has and
/// the graph all the same.
inline hosttest::Texts openBrackets(ORV_v1::Container& graph,
                                    std::initializer_list<const char*> paths) {
  hosttest::Texts clients;
  for (const char* path : paths) {
    const auto node = graph.findNodeFromPath(path);
    const auto level = node ? node->asCompound() : ORV_v1::AddRefWrapper<ORV_v1::Compound>();
    if (level && level->activeChangeBracket()) clients.emplace_back(path);
  }
  if (clients.empty() && graph.activeChangeBracket()) clients.emplace_back("graph");
  return clients;
}
