#include "standalone/widgets/compound/scene/LevelScene.h"
#include "tests/commands/CommandTesting.h"

using namespace orvuilib;

namespace {

/// A scene of the graph "g" that follows it. Nodes come without a place.
class LevelPlacementTest : public CommandTest, private orvlib::ChangeListener {
 protected:
  LevelPlacementTest() : scene(theme) {
    container().addListener(*this);
    scene.show(&container().top());
  }
  ~LevelPlacementTest() override { container().removeListener(*this); }

  orvlib::ContainerObject& container() { return static_cast<orvlib::ContainerObject&>(graph); }
  void graphChanged(orvlib::ContainerObject&,
                    std::span<const orvlib::NodeChange> changes) override {
    scene.follow(changes);
  }
  QRectF boundsOf(const char* path) { return scene.find(container().findNode(path))->bounds; }

  /// Of a size that covers where nodes without a place come to be.
  QRectF addNote(const std::string& kind, const std::string& name) {
    host.run("orvCompound g / -add" + kind + " " + name);
    const std::string set = "orvCompound g / -setAnnotationMetaDataValue " + name + " editor.";
    host.run(set + "position \"-200,-200\"");
    host.run(set + "size \"600,700\"");
    return {-200, -200, 600, 700};
  }

  Theme theme{1};
  LevelScene scene;
};

TEST_F(LevelPlacementTest, ANodeWithoutAPlaceComesToLieBesideAStickyNote) {
  const QRectF note = addNote("StickyNote", "note");
  host.run("orvCompound g / -addNode core::math::add");
  EXPECT_FALSE(boundsOf("/add").intersects(note));
  scene.show(&container().top());
  EXPECT_FALSE(boundsOf("/add").intersects(note));
}

TEST_F(LevelPlacementTest, OnABackdropANodeMayLie) {
  const QRectF backdrop = addNote("Backdrop", "backdrop");
  host.run("orvCompound g / -addNode core::math::add");
  EXPECT_TRUE(boundsOf("/add").intersects(backdrop));
}

}  // namespace
