#pragma once

#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "standalone/graph/storage/GraphText.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {

/// A graph with what the tests of commands ask again and again.
class CommandFixture : public GraphFixture {
 protected:
  using Handle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  std::string text() const { return writeGraph(graph_); }

  ORV_v1::AddRefWrapper<ORV_v1::Node> node(const char* path) {
    return graph_.findNodeFromPath(path);
  }
  ORV_v1::AddRefWrapper<ORV_v1::Compound> compound(const char* path) {
    return node(path)->asCompound();
  }
  Handle handle(std::string_view path, unsigned int mode = 1) { return Handle(port(path, mode)); }

  /// The value texts of a port while nothing is connected.
  std::vector<std::string> values(std::string_view path) {
    ORV_v1::StringArray texts;
    EXPECT_TRUE(port(path)->getPortDefaultValues(texts)) << path;
    return ORV_v1::GraphAccess::textsOf(texts);
  }

  static ORV_v1::StringArray array(std::vector<std::string> texts) {
    return ORV_v1::GraphAccess::makeStringArray(std::move(texts));
  }

  /// Whether a wire leads from the one to the other, on whichever faces are at one level.
  bool wired(std::string_view source, std::string_view target) {
    const auto [from, to] = graph_.findPair(source, target);
    return from && from->peers().contains(to) && to->peers().contains(from);
  }

  /// The full paths of what the port is connected to, in order.
  std::vector<std::string> peers(std::string_view path, unsigned int mode = 1) {
    std::vector<std::string> paths;
    for (const PortObject* peer : port(path, mode)->peers().items()) {
      paths.push_back(peer->fullPath());
    }
    return paths;
  }

  /// Goes back and forth over a command that is done, and compares.
  template <class Command>
  void expectReversible(Command& command, const std::string& before) {
    const std::string after = text();
    command.undo();
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(command.redo());
    EXPECT_EQ(text(), after);
    command.undo();
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(command.redo());
  }
};

}  // namespace orvlib
