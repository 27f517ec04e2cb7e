#include "platform/ORV_1_0/MetadataCommand.h"

#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

class MetadataCommandTest : public CommandFixture {
 protected:
  MetadataCommandTest() : group_(addCompound(top(), "group")) {
    addPort(*group_, PortDirection::Output, "out", "float");
  }

  static std::string written(const Properties& set) {
    return ORV_v1::GraphAccess::makePropertyList(set)
        .serialize(ORV_v1::PropertyList::kSerializeAll)
        .toChar();
  }

  CompoundObject* group_;
  ORV_v1::MetadataCommand command_;
};

TEST_F(MetadataCommandTest, EditsInTheOrderOfRecording) {
  const std::string before = text();
  ASSERT_TRUE(command_.setParentNode(&graph_, "/group"));
  command_.setMetadata("a", array({"1", "2"}));
  command_.addMetadata("a", "3");
  command_.removeMetadata("a", "1");
  command_.setMetadata("b", array({"x"}));
  command_.clearMetadata("b");
  command_.clearMetadata("none");
  EXPECT_EQ(text(), before);
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(written(group_->node()->metadata()), "{a={2,3}}");
  expectReversible(command_, before);
}

TEST_F(MetadataCommandTest, TheCompoundsIsNotItsNodes) {
  ASSERT_TRUE(command_.setParentCompound(&graph_, "/group"));
  command_.addMetadata("a", "1");
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(written(group_->metadata()), "{a=1}");
  EXPECT_TRUE(group_->node()->metadata().empty());
}

TEST_F(MetadataCommandTest, AWatchPointGoesByThePathOfItsPort) {
  for (const unsigned int mode : {1u, 0u}) {
    ORV_v1::WatchPointCommand watch;
    ASSERT_TRUE(watch.createWatchPoint(handle("/group.out", mode)));
    ASSERT_TRUE(watch.redo());
    ORV_v1::MetadataCommand command;
    ASSERT_TRUE(command.setParentWatchPoint(&graph_, "/group.out"));
    command.addMetadata("a", "1");
    ASSERT_TRUE(command.redo());
    EXPECT_EQ(written(port("/group.out", mode)->watchPoint()->metadata()), "{a=1}");
  }
}

TEST_F(MetadataCommandTest, ReplacesTheWholeSet) {
  command_.setParentNode(&graph_, "/group");
  command_.addMetadata("a", "1");
  ORV_v1::PropertyList all;
  all.unserialize("{b={x,y}}", ORV_v1::PropertyList::kSerializeAll);
  command_.setFromPropertyList(all);
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(written(group_->node()->metadata()), "{b={x,y}}");
}

TEST_F(MetadataCommandTest, RefusesAnEmptyKeyAndAnObjectThatIsNotThere) {
  EXPECT_FALSE(command_.setParentNode(&graph_, "/none"));
  EXPECT_FALSE(command_.setParentWatchPoint(&graph_, "/group.out"));
  EXPECT_FALSE(command_.addMetadata("", "1"));
  EXPECT_FALSE(command_.setMetadata(nullptr, array({})));
  EXPECT_TRUE(command_.redo());
  command_.addMetadata("a", "1");
  EXPECT_FALSE(command_.redo());
}

/// An edit of what is at "/group", or at the watch point of its output.
using Bind = bool (ORV_v1::MetadataCommand::*)(ORV_v1::Container*, const char*);
struct Bound {
  const char* name;
  Bind bind;
  const char* path;
};

class MetadataOfWhatHasLeft : public MetadataCommandTest,
                              public testing::WithParamInterface<Bound> {
 protected:
  MetadataOfWhatHasLeft() {
    watch_.createWatchPoint(handle("/group.out"));
    EXPECT_TRUE(watch_.redo());
    EXPECT_TRUE((command_.*GetParam().bind)(&graph_, GetParam().path));
    EXPECT_TRUE(command_.addMetadata("a", "1"));
    remove_.removeNode(compound("/"), "group");
    before_ = text();
  }

  ORV_v1::WatchPointCommand watch_;
  ORV_v1::NodeCommand remove_;
  std::string before_;
};

TEST_P(MetadataOfWhatHasLeft, CannotBeEditedUntilItIsBack) {
  ASSERT_TRUE(remove_.redo());
  EXPECT_FALSE(command_.redo());
  ASSERT_TRUE(remove_.undo());
  EXPECT_EQ(text(), before_);
  EXPECT_TRUE(command_.redo());
  EXPECT_NE(text(), before_);
}

TEST_P(MetadataOfWhatHasLeft, CannotBeEditedAgainUntilItIsBack) {
  ASSERT_TRUE(command_.redo());
  command_.undo();
  ASSERT_TRUE(remove_.redo());
  EXPECT_FALSE(command_.redo());
  ASSERT_TRUE(remove_.undo());
  EXPECT_EQ(text(), before_);
  EXPECT_TRUE(command_.redo());
  EXPECT_NE(text(), before_);
}

TEST_P(MetadataOfWhatHasLeft, IsStillTakenBackByUndo) {
  ASSERT_TRUE(command_.redo());
  ASSERT_TRUE(remove_.redo());
  command_.undo();
  ASSERT_TRUE(remove_.undo());
  EXPECT_EQ(text(), before_);
}

INSTANTIATE_TEST_SUITE_P(
    All, MetadataOfWhatHasLeft,
    testing::Values(Bound{"Node", &ORV_v1::MetadataCommand::setParentNode, "/group"},
                    Bound{"Compound", &ORV_v1::MetadataCommand::setParentCompound, "/group"},
                    Bound{"WatchPoint", &ORV_v1::MetadataCommand::setParentWatchPoint,
                          "/group.out"}),
    [](const auto& bound) { return std::string(bound.param.name); });

TEST_F(MetadataCommandTest, AWatchPointThatIsOnNoPortCannotBeEdited) {
  ORV_v1::WatchPointCommand watch;
  watch.createWatchPoint(handle("/group.out"));
  ASSERT_TRUE(watch.redo());
  const WatchPointRef watched(port("/group.out")->watchPoint());
  ASSERT_TRUE(command_.setParentWatchPoint(&graph_, "/group.out"));
  command_.addMetadata("a", "1");
  watch.undo();
  EXPECT_FALSE(command_.redo());
  EXPECT_TRUE(watched->metadata().empty());
}

}  // namespace
}  // namespace orvlib
