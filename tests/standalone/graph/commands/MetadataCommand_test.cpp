#include "platform/ORV_1_0/MetadataCommand.h"

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

}  // namespace
}  // namespace orvlib
