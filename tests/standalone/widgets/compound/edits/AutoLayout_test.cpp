#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

/// a -> b -> c all on one point, and d alone.
class AutoLayoutTest : public EditsTest {
 protected:
  AutoLayoutTest() {
    add("core::math::add", "a", 0, 0);
    add("core::math::negate", "b", 0, 0);
    add("core::math::multiply", "c", 0, 0);
    add("core::math::negate", "d", 40, 0);
    script({"orvConnect g /a.result /b.value", "orvConnect g /b.result /c.a"});
    open();
  }

  void note(const char* kind, const char* name, const char* position, const char* size) {
    const std::string line = std::string("orvCompound g / ");
    host.run(line + kind + " " + name);
    const std::string set = line + "-setAnnotationMetaDataValue " + name + " editor.";
    host.run(set + "position " + position);
    host.run(set + "size " + size);
    forget();
  }
  QRectF boundsOf(const char* name) {
    return scene().find(scene().level()->annotations().find(name))->bounds;
  }
};

TEST_F(AutoLayoutTest, AllStandFromLeftToRightAndTheBoundaryBeside) {
  const Lines lines = step(Qt::Key_L);
  for (const char* name : {"a", "b", "c"}) {
    const std::string path = std::string("\"/") + name + "\"";
    EXPECT_THAT(lines,
                Contains(HasSubstr("orvNode \"g\" " + path + " -setMetaData \"editor.position\"")));
  }
  EXPECT_LT(box("a")->bounds.right(), box("b")->bounds.left());
  EXPECT_LT(box("b")->bounds.right(), box("c")->bounds.left());
  expectNoOverlap();
  EXPECT_NEAR(scene().inputs()->bounds.right(), placeOf("a").x() - 140, 200);
  EXPECT_LT(scene().inputs()->bounds.right(), box("a")->bounds.left() - 100);
  EXPECT_GT(scene().outputs()->bounds.left(), box("c")->bounds.right() + 100);
  EXPECT_LT(scene().outputs()->bounds.left(), box("c")->bounds.right() + 300);
}

TEST_F(AutoLayoutTest, OfASelectionNothingElseMoves) {
  select({"a", "b"});
  const QPointF c = placeOf("c");
  const Lines lines = step(Qt::Key_L);
  EXPECT_THAT(lines, Each(HasSubstr("-setMetaData \"editor.position\"")));
  EXPECT_THAT(lines, Not(Contains(HasSubstr("\"/c\""))));
  EXPECT_EQ(placeOf("c"), c);
}

TEST_F(AutoLayoutTest, ABackdropReachesAroundWhatLayOnIt) {
  host.run("orvNode g /a -setMetaData editor.position \"600,0\"");
  host.run("orvNode g /c -setMetaData editor.position \"620,40\"");
  note("-addBackdrop", "frame", "560,-60", "400,300");
  note("-addBackdrop", "all", "500,-200", "700,600");
  step(Qt::Key_L);
  const QRectF content = box("a")->bounds | box("c")->bounds;
  EXPECT_EQ(boundsOf("frame"), content.adjusted(-30, -56, 30, 30));
  EXPECT_EQ(boundsOf("all"), boundsOf("frame").adjusted(-30, -56, 30, 30));
  EXPECT_FALSE(boundsOf("frame").intersects(box("d")->bounds));
}

TEST_F(AutoLayoutTest, ANoteStaysByItsNode) {
  host.run("orvNode g /c -setMetaData editor.position \"0,900\"");
  note("-addStickyNote", "note", "10,1030", "180,90");
  const QPointF apart = boundsOf("note").topLeft() - placeOf("c");
  step(Qt::Key_L);
  EXPECT_NE(placeOf("c"), QPointF(0, 900));
  EXPECT_EQ(boundsOf("note").topLeft() - placeOf("c"), apart);
}

TEST_F(AutoLayoutTest, ANoteDoesNotComeToLieOnANode) {
  note("-addStickyNote", "note", "10,10", "180,90");
  step(Qt::Key_L);
  scene().forEachBox([this](const orvuilib::BoxItem& each) {
    EXPECT_FALSE(each.bounds.intersects(boundsOf("note"))) << each.node->name();
  });
}

}  // namespace
