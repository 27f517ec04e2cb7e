#include "platform/ORV_1_0/ConnectNodesCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

class ConnectNodesCommandTest : public CommandFixture {
 protected:
  ConnectNodesCommandTest() {
    for (const char* name : {"a", "b", "c"}) add(top(), "core::math::add", name);
  }

  bool record(std::initializer_list<const char*> paths) {
    auto list = ORV_v1::NodeList::createNew(nullptr);
    for (const char* path : paths) list->add(node(path));
    return command_.connect(*list);
  }

  ORV_v1::ConnectNodesCommand command_;
};

TEST_F(ConnectNodesCommandTest, ChainsEachNodeToTheNext) {
  const std::string before = text();
  ASSERT_TRUE(record({"/a", "/b", "/c"}));
  EXPECT_EQ(text(), before);
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/a.result", "/b.a"));
  EXPECT_TRUE(wired("/b.result", "/c.a"));
  expectReversible(command_, before);
}

TEST_F(ConnectNodesCommandTest, TakesTheFirstInputThatIsFree) {
  connect("/c.result", "/b.a");
  ASSERT_TRUE(record({"/a", "/b"}));
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/a.result", "/b.b"));
}

TEST_F(ConnectNodesCommandTest, PrefersAnInputOfTheVeryType) {
  CompoundObject* inner = addCompound(top(), "inner");
  addPort(*inner, PortDirection::Input, "number", "int");
  addPort(*inner, PortDirection::Input, "exact", "float");
  ASSERT_TRUE(record({"/a", "/inner"}));
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/a.result", "/inner.exact"));
}

TEST_F(ConnectNodesCommandTest, ConvertsWhenNoTypeIsTheSame) {
  addPort(*addCompound(top(), "inner"), PortDirection::Input, "number", "int");
  ASSERT_TRUE(record({"/a", "/inner"}));
  ASSERT_TRUE(command_.doit());
  EXPECT_TRUE(wired("/a.result", "/inner.number"));
}

TEST_F(ConnectNodesCommandTest, ALinkThatCannotBeMadeUndoesTheOthers) {
  addPort(*addCompound(top(), "inner"), PortDirection::Input, "words", "string");
  const std::string before = text();
  ASSERT_TRUE(record({"/a", "/b", "/inner"}));
  EXPECT_FALSE(command_.doit());
  EXPECT_EQ(text(), before);
}

TEST_F(ConnectNodesCommandTest, RecordsNoFewerThanTwoNodesOfOneLevel) {
  add(*addCompound(top(), "inner"), "core::math::add", "deep");
  EXPECT_FALSE(record({}));
  EXPECT_FALSE(record({"/a"}));
  EXPECT_FALSE(record({"/a", "/inner/deep"}));
  EXPECT_TRUE(command_.doit());
}

}  // namespace
}  // namespace orvlib
