// Where panels come to stand that take a place in the window.

#include "standalone/workspace/PanelSet.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

class PanelPlaces : public ::testing::Test {
 protected:
  /// A panel as modules make them, then brought into the window.
  vesk::Panel& add(const std::string& name, int width) {
    w_.run("workspaceControl -floating on -initialWidth " + std::to_string(width) + " " + name);
    w_.run("workspaceControl -e -floating off " + name);
    settle();
    return *w_.panels().find(name);
  }

  QRect placeOf(const QWidget& panel) {
    return {panel.mapTo(&w_.window(), QPoint(0, 0)), panel.size()};
  }

  Window w_;
};

TEST_F(PanelPlaces, AWideOneStandsAboveTheCommands) {
  const QRect wide = placeOf(add("wide", 1024));
  const QRect commands = placeOf(*w_.panels().find("commandPanel"));
  EXPECT_LT(wide.bottom(), commands.top());
  EXPECT_EQ(wide.left(), commands.left());
  EXPECT_GT(wide.height(), commands.height());
}

TEST_F(PanelPlaces, ANarrowOneIsAColumnAtTheSide) {
  const QRect narrow = placeOf(add("narrow", 300));
  const QRect commands = placeOf(*w_.panels().find("commandPanel"));
  EXPECT_GT(narrow.left(), commands.right());
  EXPECT_NEAR(narrow.width(), 300, 10);
  EXPECT_GT(narrow.height(), w_.window().height() / 2);
}

TEST_F(PanelPlaces, OthersOfTheirKindAreTabs) {
  vesk::Panel& wide = add("wide", 1024);
  vesk::Panel& narrow = add("narrow", 300);
  vesk::Panel& second = add("second", 250);
  vesk::Panel& third = add("third", 800);
  EXPECT_TRUE(w_.window().tabifiedDockWidgets(&narrow).contains(&second));
  EXPECT_TRUE(w_.window().tabifiedDockWidgets(&wide).contains(&third));
}

TEST_F(PanelPlaces, OneThatWentOutComesBackToWhereItWas) {
  vesk::Panel& narrow = add("narrow", 300);
  const QRect before = placeOf(narrow);
  w_.run("workspaceControl -e -floating on narrow");
  w_.run("workspaceControl -e -floating off narrow");
  settle();
  EXPECT_EQ(placeOf(narrow).top(), before.top());
  EXPECT_GT(placeOf(narrow).left(), placeOf(*w_.panels().find("commandPanel")).right());
}

}  // namespace
}  // namespace windowtest
