#include "standalone/widgets/compound/view/Navigator.h"

#include "standalone/graph/model/ContainerObject.h"
#include "tests/commands/CommandTesting.h"

using namespace orvuilib;

namespace {

/// "/outer/inner" and "/other".
class NavigatorTest : public CommandTest {
 protected:
  NavigatorTest() {
    host.run("orvCompound g / -create outer");
    host.run("orvCompound g /outer -create inner");
    host.run("orvCompound g / -create other");
    navigator.open(level("/"));
  }
  orvlib::NodeObject* level(const char* path) {
    return static_cast<orvlib::ContainerObject&>(graph).findNode(path);
  }
  void go(const char* path) { navigator.go(*level(path)); }

  Navigator navigator;
};

TEST_F(NavigatorTest, GoesBackAndForwardAndForgetsWhatLayAhead) {
  go("/outer");
  go("/outer/inner");
  navigator.back();
  EXPECT_EQ(navigator.current(), level("/outer"));
  navigator.forward();
  EXPECT_FALSE(navigator.canGoForward());
  navigator.back();
  navigator.back();
  EXPECT_FALSE(navigator.canGoBack());
  go("/other");
  EXPECT_FALSE(navigator.canGoForward());
  EXPECT_EQ(navigator.path(), (std::vector{level("/"), level("/other")}));
}

TEST_F(NavigatorTest, StaysWhereItIsWhileThatIsThere) {
  go("/outer/inner");
  host.run("orvCompound g / -removeNode other");
  EXPECT_FALSE(navigator.leaveWhatIsGone());
  EXPECT_EQ(navigator.current(), level("/outer/inner"));
}

TEST_F(NavigatorTest, LeavesWhatIsGoneForTheNearestLevelAbove) {
  go("/outer");
  go("/outer/inner");
  host.run("orvCompound g /outer -removeNode inner");
  EXPECT_TRUE(navigator.leaveWhatIsGone());
  EXPECT_EQ(navigator.current(), level("/outer"));
  EXPECT_TRUE(navigator.canGoBack());
  EXPECT_FALSE(navigator.canGoForward());
}

TEST_F(NavigatorTest, IsNowhereWithoutAGraph) {
  navigator.open(nullptr);
  EXPECT_EQ(navigator.current(), nullptr);
  EXPECT_TRUE(navigator.path().empty());
  EXPECT_FALSE(navigator.leaveWhatIsGone());
}

}  // namespace
