#include "standalone/widgets/compound/parts/NodeMenu.h"

#include <QLabel>

#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

/// The menu of what can be put into the wire from a to b, which carries a float.
class NodeMenuTest : public EditorTest {
 protected:
  NodeMenuTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 100, -100);
    host.run("orvConnect g /a.result /b.a");
    host.takeEchoes();
    open();
    const auto* wire = box("b")->arriving.front();
    rightClick(at((wire->start + wire->end) / 2));
    choose("Put a node into it...");
    ofWire_ = menu()->lineCount();
  }

  bool offers(const QString& title) {
    for (int i = 0; i < menu()->lineCount(); ++i) {
      if (menu()->line(i).text == title) return true;
    }
    return false;
  }
  QString hint() { return menu()->findChild<QLabel*>()->text(); }

  int ofWire_ = 0;  ///< how many lines are offered
};

TEST_F(NodeMenuTest, OffersForAWireWhatFitsAtBothEnds) {
  EXPECT_EQ(hint(), "What fits between float and float");
  EXPECT_TRUE(offers("Absolute"));
  // They take a float, and give none.
  host.run("orvConnect g -disconnect /a.result /b.a");
  drag(dotOf("a", "result"), at({-60, 200}));
  ASSERT_EQ(hint(), "What connects to float");
  const int ofSource = menu()->lineCount();
  EXPECT_LT(ofWire_, ofSource);
  host.takeEchoes();
}

TEST_F(NodeMenuTest, ClosesWithItsWire) {
  ASSERT_TRUE(menu()->isVisible());
  host.run("orvNode g /a -setPortDefaultValues b 2");
  EXPECT_TRUE(menu()->isVisible());
  host.run("orvConnect g -disconnect /a.result /b.a");
  EXPECT_FALSE(menu()->isVisible());
  host.takeEchoes();
}

}  // namespace
