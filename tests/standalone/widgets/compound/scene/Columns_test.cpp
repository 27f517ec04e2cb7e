#include "standalone/widgets/compound/scene/Columns.h"

#include "standalone/widgets/compound/scene/LevelScene.h"
#include "tests/commands/CommandTesting.h"

using namespace orvuilib;

namespace {

/// How a level without positions is shown.
class ColumnsTest : public CommandTest {
 protected:
  LevelScene& shown() {
    scene.show(static_cast<orvlib::NodeObject*>(graph.getTopNode().get()));
    return scene;
  }
  QRectF at(const std::string& path) {
    return scene.find(static_cast<orvlib::ContainerObject&>(graph).findNode(path))->bounds;
  }

  Theme theme{1};
  LevelScene scene{theme};
};

TEST_F(ColumnsTest, MembersOfAFanInPortComeBeforeIt) {
  host.run("orvCompound g / -addNode core::array::build -addNode core::math::add");
  host.run("orvConnect g /add.result /build.elements");
  shown();
  EXPECT_LT(at("/add").right(), at("/build").left());
}

TEST_F(ColumnsTest, WhatGoesIntoAComponentComesBeforeIt) {
  host.run("orvCompound g / -addNode core::color::mix3 -addNode core::math::add");
  host.run("orvConnect g /add.result /mix3.a.g");
  shown();
  EXPECT_LT(at("/add").right(), at("/mix3").left());
}

TEST_F(ColumnsTest, WhatAnInputNodeGivesComesBehindIt) {
  host.run("orvCompound g / -addNode core::math::add -addIONode true -createInputPort x float");
  host.run("orvCompound g / -movePortToIONode x input");
  host.run("orvConnect g /.x /add.a");
  shown();
  EXPECT_LT(at("/input").right(), at("/add").left());
}

TEST_F(ColumnsTest, TheBoundaryLiesOnNoNote) {
  host.run("orvCompound g / -addNode core::math::add -addStickyNote x -createInputPort x float");
  host.run("orvCompound g / -setAnnotationMetaDataValue note editor.position \"-300,0\"");
  host.run("orvCompound g / -setAnnotationMetaDataValue note editor.size \"900,200\"");
  shown();
  const QRectF note(-300, 0, 900, 200);
  EXPECT_FALSE(scene.inputs()->bounds.intersects(note));
  EXPECT_FALSE(scene.outputs()->bounds.intersects(note));
}

}  // namespace
