#include "standalone/widgets/compound/scene/LevelScene.h"
#include "tests/commands/CommandTesting.h"

using namespace orvuilib;

namespace {

/// A scene of the graph "g" that follows it.
class LevelChangesTest : public CommandTest, private orvlib::ChangeListener {
 protected:
  LevelChangesTest() : scene(theme) {
    container().addListener(*this);
    scene.show(&container().top());
  }
  ~LevelChangesTest() override { container().removeListener(*this); }

  orvlib::ContainerObject& container() { return static_cast<orvlib::ContainerObject&>(graph); }
  void graphChanged(orvlib::ContainerObject&,
                    std::span<const orvlib::NodeChange> changes) override {
    touched = scene.follow(changes).bounds();
  }
  BoxItem* box(const char* path) { return scene.find(container().findNode(path)); }
  QColor typeColour(const char* type) const { return theme.typeColour(type); }

  Theme theme{1};
  LevelScene scene;
  QRectF touched;
};

TEST_F(LevelChangesTest, AWireHasTheColourOfItsSourceWhenThatBecomesAnotherType) {
  host.run("orvCompound g / -create inner -addNode core::math::add");
  host.run("orvCompound g /inner -createOutputPort y int");
  host.run("orvConnect g /inner.y /add.a");
  ASSERT_EQ(box("/inner")->leaving.size(), 1u);
  ASSERT_EQ(box("/inner")->leaving[0]->colour, typeColour("int").rgb());
  host.run("orvCompound g /inner -setPortDataType y float");
  const Wire& wire = *box("/inner")->leaving.at(0);
  EXPECT_EQ(wire.colour, typeColour("float").rgb());
  EXPECT_TRUE(touched.contains(wire.bounds));
}

TEST_F(LevelChangesTest, ANoteGoesBackToItsPlaceAndSizeWhenThoseAreUndone) {
  host.run("orvCompound g / -addStickyNote note");
  NoteItem* note = scene.find(scene.level()->annotations().items().front());
  ASSERT_TRUE(note);
  const QRectF before = note->bounds;
  host.run("orvCompound g / -setAnnotationMetaDataValue note editor.position \"300,200\"");
  host.run("orvCompound g / -setAnnotationMetaDataValue note editor.size \"400,300\"");
  ASSERT_EQ(note->bounds, QRectF(300, 200, 400, 300));
  host.run("undo; undo");
  EXPECT_EQ(note->bounds, before);
  EXPECT_TRUE(touched.contains(before));
}

}  // namespace
