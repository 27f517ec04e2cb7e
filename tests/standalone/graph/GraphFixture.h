#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/ContainerObject.h"
#include "testPaths.h"

namespace orvlib {

/// A graph of the standard runtime, and short ways to build in it. Edits are not kept for undo.
class GraphFixture : public testing::Test {
 protected:
  GraphFixture() {
    registry_.load(VESK_SOURCE_DIR "/library");
    registry_.makeCurrent();
  }

  CompoundObject& top() { return *graph_.top().compound(); }
  NodeFactory factory() { return NodeFactory(graph_.core()); }

  NodeObject* insert(CompoundObject& level, const NodeRef& node) {
    EXPECT_TRUE(edits_.run(InsertNode{{CompoundRef(&level), node, level.nodes().count()}}));
    return node.get();
  }

  /// A node of that type, such as "core::math::add", under a name that is free.
  NodeObject* add(CompoundObject& level, std::string_view type, std::string name) {
    auto definition = graph_.core().findDefinition(type);
    EXPECT_TRUE(definition != nullptr) << type;
    return insert(level, factory().makePlain(*definition, std::move(name)));
  }

  CompoundObject* addCompound(CompoundObject& level, std::string name) {
    return insert(level, factory().makeCompound(std::move(name)))->compound();
  }

  /// That many compounds in each other; gives the innermost, or the level for none.
  CompoundObject* addNested(CompoundObject& level, const std::string& name, unsigned int count) {
    CompoundObject* innermost = &level;
    for (; count > 0; --count) innermost = addCompound(*innermost, name);
    return innermost;
  }

  /// A port of a compound, by its outer face.
  PortObject* addPort(CompoundObject& compound, PortDirection direction, std::string_view name,
                      std::string_view type) {
    const PortRef port = factory().makeCompoundPort(direction, name, graph_.core().findType(type));
    NodeObject* node = compound.node();
    EXPECT_TRUE(edits_.run(InsertPort{{NodeRef(node), port, node->list(direction).count()}}));
    return port.get();
  }

  /// The face at `path` that takes or gives values at the level inside (0) or around (1) its node.
  PortObject* port(std::string_view path, unsigned int mode = 1) {
    return graph_.findPort(path, 2, mode);
  }

  bool connect(PortObject* source, PortObject* target) {
    Transaction edits;
    if (runConnect(edits, *source, *target, Occupied::Displace)) return true;
    edits.rollback();
    return false;
  }

  /// By paths, on whichever faces are at one level.
  bool connect(std::string_view source, std::string_view target) {
    const auto [from, to] = graph_.findPair(source, target);
    return from && connect(from, to);
  }

  RuntimeRegistry registry_;
  ContainerObject graph_{"standard"};
  Transaction edits_;
};

}  // namespace orvlib
