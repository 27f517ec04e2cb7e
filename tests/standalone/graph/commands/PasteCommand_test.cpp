#include "platform/ORV_1_0/PasteCommand.h"

#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

using Texts = std::vector<std::string>;

/// first -> a -> b; the copies are of a and b.
class PasteCommandTest : public CommandFixture {
 protected:
  PasteCommandTest() {
    for (const char* name : {"first", "a", "b"}) add(top(), "core::math::add", name);
    connect("/first.result", "/a.a");
    connect("/a.result", "/b.a");
    Clipboard::setText("");
    graph_.publishUuid("here");
    command_.setParentCompound(&graph_, "/");
  }

  void copy(std::initializer_list<const char*> names) {
    ORV_v1::CopyCommand command;
    ASSERT_TRUE(command.setParentCompound(&graph_, "/"));
    for (const char* name : names) ASSERT_TRUE(command.addSourceNode(name));
    ASSERT_TRUE(command.doit());
  }

  bool disconnect(std::string_view source, std::string_view target) {
    return edits_.run(Disconnect{{PortRef(port(source)), PortRef(port(target))}});
  }

  /// Takes out a node and its connections.
  void removeNode(const char* name) {
    ORV_v1::NodeCommand command;
    ASSERT_TRUE(command.removeNode(compound("/"), name));
    ASSERT_TRUE(command.doit());
  }

  ORV_v1::PasteCommand command_;
};

TEST_F(PasteCommandTest, PastesNodesWithTheWiresAmongThem) {
  copy({"a", "b"});
  const std::string before = text();
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/a1.result", "/b1.a"));
  EXPECT_FALSE(port("/a1.a")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(PasteCommandTest, PastesValuesMetadataAndWatchPoints) {
  ORV_v1::ModifyNodePortCommand ports;
  ports.setPortValues(node("/a"), "b", array({"5"}), false);
  ports.setPortMetaDataValue(node("/a"), "b", "unit", "m");
  ASSERT_TRUE(ports.redo());
  ORV_v1::WatchPointCommand watch;
  watch.createWatchPoint(handle("/a.result"));
  ASSERT_TRUE(watch.redo());
  copy({"a"});
  ASSERT_TRUE(command_.doit());
  EXPECT_EQ(values("/a1.b"), Texts{"5"});
  EXPECT_STREQ(port("/a1.b")->getPortMetaDataValue("unit").toChar(), "m");
  EXPECT_NE(port("/a1.result")->watchPoint(), nullptr);
}

/// Such a connection would be left with one end in no graph.
TEST_F(PasteCommandTest, IsNotTakenBackWhileSomethingElseIsConnectedToIt) {
  copy({"b"});
  const std::string before = text();
  ASSERT_TRUE(command_.doit());
  connect("/first.result", "/b1.b");
  const std::string connected = text();
  EXPECT_FALSE(command_.undo());
  EXPECT_EQ(text(), connected);
  ASSERT_TRUE(disconnect("/first.result", "/b1.b"));
  EXPECT_TRUE(command_.undo());
  EXPECT_EQ(text(), before);
}

TEST_F(PasteCommandTest, IsNotTakenBackWhileSomethingElseIsConnectedToAComponent) {
  add(top(), "core::color::mix3", "mix");
  copy({"mix"});
  ASSERT_TRUE(command_.doit());
  connect("/first.result", "/mix1.a.r");
  const std::string connected = text();
  EXPECT_FALSE(command_.undo());
  EXPECT_EQ(text(), connected);
}

TEST_F(PasteCommandTest, CanDuplicateTheConnectionsFromOutside) {
  copy({"a"});
  const std::string before = text();
  command_.duplicateSourceInputConnections(true);
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/first.result", "/a1.a"));
  expectReversible(command_, before);
}

TEST_F(PasteCommandTest, ConnectionsFromOutsideStayOutInAnotherLevel) {
  addCompound(top(), "group");
  copy({"a"});
  command_.setParentCompound(&graph_, "/group");
  command_.duplicateSourceInputConnections(true);
  ASSERT_TRUE(command_.doit());
  EXPECT_FALSE(port("/group/a.a")->hasPeers());
}

/// A copy that is pasted may be given the name of the source that has gone.
TEST_F(PasteCommandTest, ASourceThatHasGoneIsNotTakenForACopyOfTheNodeItself) {
  add(top(), "core::math::add", "a1");
  ASSERT_TRUE(disconnect("/first.result", "/a.a"));
  connect("/a1.result", "/a.a");
  copy({"a"});
  removeNode("a1");
  const std::string before = text();
  command_.duplicateSourceInputConnections(true);
  ASSERT_TRUE(command_.doit());
  EXPECT_FALSE(port("/a1.a")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(PasteCommandTest, ASourceThatHasGoneIsNotTakenForAnotherCopy) {
  add(top(), "core::math::add", "a1");
  ASSERT_TRUE(disconnect("/a.result", "/b.a"));
  connect("/a1.result", "/b.a");
  copy({"a", "b"});
  removeNode("a1");
  command_.duplicateSourceInputConnections(true);
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/first.result", "/a1.a"));
  EXPECT_FALSE(port("/b1.a")->hasPeers());
}

TEST_F(PasteCommandTest, ConnectionsFromOutsideStayOutInAnotherGraph) {
  ContainerObject other("standard");
  const auto definition = other.core().findDefinition("core::math::add");
  insert(*other.top().compound(), NodeFactory(other.core()).makePlain(*definition, "first"));
  copy({"a"});
  for (const std::string uuid : {"", "there"}) {
    if (!uuid.empty()) other.publishUuid(uuid);
    ORV_v1::PasteCommand command;
    ASSERT_TRUE(command.setParentCompound(&other, "/"));
    command.duplicateSourceInputConnections(true);
    ASSERT_TRUE(command.doit());
    EXPECT_FALSE(other.findPort("/a.a", 2, 1)->hasPeers()) << uuid;
    ASSERT_TRUE(command.undo());
  }
}

TEST_F(PasteCommandTest, ConnectionsFromOutsideStayOutWhereNobodyKnowsTheGraph) {
  graph_.withdrawUuid();
  copy({"a"});
  command_.duplicateSourceInputConnections(true);
  ASSERT_TRUE(command_.doit());
  EXPECT_FALSE(port("/a1.a")->hasPeers());
}

TEST_F(PasteCommandTest, PastesAnnotations) {
  const AnnotationRef note(new AnnotationObject(AnnotationKind::Backdrop, "back"));
  ASSERT_TRUE(edits_.run(InsertAnnotation{{CompoundRef(&top()), note, 0}}));
  ORV_v1::CopyCommand copying;
  copying.setParentCompound(&graph_, "/");
  ASSERT_TRUE(copying.addSourceAnnotation("back"));
  EXPECT_FALSE(copying.addSourceAnnotation("back"));
  ASSERT_TRUE(copying.doit());
  const std::string before = text();
  ASSERT_TRUE(command_.doit());
  EXPECT_NE(graph_.findAnnotation("/back1"), nullptr);
  expectReversible(command_, before);
}

TEST_F(PasteCommandTest, RefusesAClipboardWithoutAGraph) {
  const std::string before = text();
  EXPECT_FALSE(command_.doit());
  Clipboard::setText("some words");
  EXPECT_FALSE(command_.doit());
  EXPECT_EQ(text(), before);
}

class PasteNesting : public PasteCommandTest {
 protected:
  /// Ten levels of compounds are on the clipboard, and as many as that are put in each other.
  PasteNesting() {
    addNested(top(), "ten", 10);
    copy({"ten"});
  }
  bool pasteAt(unsigned int depth) {
    const std::string path =
        addNested(top(), "c" + std::to_string(depth), depth)->node()->fullPath();
    before_ = text();
    return command_.setParentCompound(&graph_, path.c_str()) && command_.doit();
  }

  std::string before_;
};

TEST_F(PasteNesting, ReachesDownToTheDeepestLevel) {
  ASSERT_TRUE(pasteAt(CompoundObject::kDeepest - 10));
  EXPECT_EQ(top().countHeight(), CompoundObject::kDeepest);
  expectReversible(command_, before_);
}

TEST_F(PasteNesting, BelowTheDeepestLevelIsRefused) {
  EXPECT_FALSE(pasteAt(CompoundObject::kDeepest - 9));
  EXPECT_EQ(text(), before_);
}

TEST_F(PasteNesting, NodesWithoutALevelAreNotNested) {
  copy({"a"});
  EXPECT_TRUE(pasteAt(CompoundObject::kDeepest));
}

}  // namespace
}  // namespace orvlib
