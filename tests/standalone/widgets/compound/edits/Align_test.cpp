#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using testing::ElementsAre;

/// Three nodes of different sizes and places.
class AlignTest : public EditsTest {
 protected:
  AlignTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::negate", "b", 0, -80);
    add("core::array::build", "longer_than_others", 200, 60);
    open();
    select({"a", "b", "longer_than_others"});
  }

  static std::string moved(const char* name, const QPointF& to) {
    return std::string("orvNode \"g\" \"/") + name + "\" -setMetaData \"editor.position\" \"" +
           orvuilib::placement::toText(to).toStdString() + '"';
  }
  QSizeF sizeOf(const char* name) { return box(name)->bounds.size(); }
};

TEST_F(AlignTest, LeftEdges) {
  EXPECT_THAT(step(Qt::Key_Left, Qt::ControlModifier),
              ElementsAre(moved("b", {-300, -80}), moved("longer_than_others", {-300, 60})));
}

TEST_F(AlignTest, RightEdges) {
  const qreal right = box("longer_than_others")->bounds.right();
  EXPECT_THAT(step(Qt::Key_Right, Qt::ControlModifier),
              ElementsAre(moved("a", {right - sizeOf("a").width(), -100}),
                          moved("b", {right - sizeOf("b").width(), -80})));
}

TEST_F(AlignTest, UpperEdges) {
  EXPECT_THAT(step(Qt::Key_Up, Qt::ControlModifier),
              ElementsAre(moved("b", {0, -100}), moved("longer_than_others", {200, -100})));
}

TEST_F(AlignTest, LowerEdges) {
  const qreal bottom = box("longer_than_others")->bounds.bottom();
  EXPECT_THAT(step(Qt::Key_Down, Qt::ControlModifier),
              ElementsAre(moved("a", {-300, bottom - sizeOf("a").height()}),
                          moved("b", {0, bottom - sizeOf("b").height()})));
}

TEST_F(AlignTest, ArrowsMoveByTenUnitsEachWay) {
  select({"b"});
  EXPECT_THAT(step(Qt::Key_Left), ElementsAre(moved("b", {-10, -80})));
  EXPECT_THAT(step(Qt::Key_Up), ElementsAre(moved("b", {-10, -90})));
  EXPECT_THAT(step(Qt::Key_Right), ElementsAre(moved("b", {0, -90})));
  EXPECT_THAT(step(Qt::Key_Down), ElementsAre(moved("b", {0, -80})));
}

}  // namespace
