#include "standalone/widgets/compound/scene/LevelScene.h"

#include <algorithm>
#include <random>

#include "tests/commands/CommandTesting.h"

using namespace orvuilib;

namespace {

/// A scene of the graph "g" that follows it.
class LevelSceneTest : public CommandTest, private orvlib::ChangeListener {
 protected:
  LevelSceneTest() : scene(theme) {
    container().addListener(*this);
    scene.show(&container().top());
  }
  ~LevelSceneTest() override { container().removeListener(*this); }

  orvlib::ContainerObject& container() { return static_cast<orvlib::ContainerObject&>(graph); }
  void graphChanged(orvlib::ContainerObject&,
                    std::span<const orvlib::NodeChange> changes) override {
    touched = scene.follow(changes);
  }
  BoxItem* box(const char* path) { return scene.find(container().findNode(path)); }

  Theme theme{1};
  LevelScene scene;
  Areas touched;
};

std::string textOf(const BoxItem& box) {
  std::string text = titleOf(box).toStdString() + ':';
  for (const PortSlot& slot : box.portSlots) {
    text += ' ' + slot.port->fullPath() + '@' + std::to_string(slot.row) + (slot.left ? 'l' : 'r');
  }
  text += box.watched ? " watched" : "";
  return text + ' ' + std::to_string(int(box.bounds.width())) + '\n';
}

std::string textOf(const Wire& wire) {
  return wire.source->fullPath() + " > " + wire.target->fullPath() + ' ' +
         titleOf(*wire.from).toStdString() + ' ' + titleOf(*wire.to).toStdString() + '\n';
}

/// All that a scene shows but for places, in one order.
std::vector<std::string> textsOf(const LevelScene& scene) {
  std::vector<std::string> texts;
  const QRectF everything(-1e7, -1e7, 2e7, 2e7);
  scene.boxes().search(everything, [&texts](BoxItem& box) { texts.push_back(textOf(box)); });
  scene.wires().search(everything, [&texts](Wire& wire) { texts.push_back(textOf(wire)); });
  scene.notes().search(
      everything, [&texts](NoteItem& note) { texts.push_back(note.text.toStdString() + '\n'); });
  std::ranges::sort(texts);
  return texts;
}

/// Each wire's ends are where its ports are.
void expectWiresAtPorts(const LevelScene& scene) {
  scene.wires().search({-1e7, -1e7, 2e7, 2e7}, [&scene](Wire& wire) {
    EXPECT_EQ(wire.start, anchorOf(*wire.from, *scene.find(*wire.source).slot));
    EXPECT_EQ(wire.end, anchorOf(*wire.to, *scene.find(*wire.target).slot));
  });
}

std::string nodeName(int i) { return i == 0 ? "build" : "build" + std::to_string(i); }

/// A line that may well fail.
std::string randomLine(std::mt19937& random) {
  const auto name = [&random] { return nodeName(static_cast<int>(random() % 6)); };
  switch (random() % 12) {
    case 0:
      return "orvCompound g / -addNode core::array::build";
    case 1:
      return "orvCompound g / -removeNode " + name();
    case 2:
      return "orvConnect g /" + name() + ".result /" + name() + ".elements";
    case 3:
      return "orvConnect g /.x /" + name() + ".elements";
    case 4:
      return "orvConnect g /" + name() + ".result /.y";
    case 5:
      return "orvCompound g / -renamePort x z -renamePort z x";
    case 6:
      return "orvNode g /" + name() + " -setMetaData editor.position 10,20";
    case 7:
      return "orvCompound g / -hidePort x " + std::string(random() % 2 ? "true" : "false");
    case 8:
      return "orvWatchPoint g /" + name() + " result " + (random() % 2 ? "-create" : "-remove");
    case 9:
      return "orvCompound g / -addIONode true -movePortToIONode x input";
    case 10:
      return random() % 2 ? "undo" : "redo";
    default:
      return "orvCompound g / -addBackdrop frame -removeNode input";
  }
}

TEST_F(LevelSceneTest, WhatFollowsTheGraphIsWhatIsShownAnew) {
  host.run("orvCompound g / -createInputPort x float -createOutputPort y array<float>");
  for (unsigned seed = 1; seed <= 4; ++seed) {
    std::mt19937 random(seed);
    for (int i = 0; i < 120; ++i) {
      const std::string line = randomLine(random);
      host.status(line);
      host.takeMessages();
      LevelScene fresh(theme);
      fresh.show(&container().top());
      ASSERT_EQ(textsOf(scene), textsOf(fresh)) << line << ", line " << i << " of seed " << seed;
      ASSERT_EQ(scene.wireCount(), fresh.wireCount());
      expectWiresAtPorts(scene);
    }
  }
}

TEST_F(LevelSceneTest, AnEditOfOneNodeTouchesItsPartAlone) {
  host.run("orvCompound g / -addNode core::math::add -addNode core::math::add");
  host.run("orvNode g /add -setMetaData editor.position 0,0");
  host.run("orvNode g /add1 -setMetaData editor.position 5000,5000");
  host.run("orvNode g /add -setPortDefaultValues a 2");
  EXPECT_EQ(touched.bounds(), box("/add")->bounds);
}

TEST_F(LevelSceneTest, WhatHasNoPlaceStandsInColumnsByItsWires) {
  host.run("orvCompound g / -addNode core::math::add -addNode core::math::add");
  host.run("orvConnect g /add1.result /add.a");
  LevelScene fresh(theme);
  fresh.show(&container().top());
  const auto at = [&](const char* path) { return fresh.find(container().findNode(path))->bounds; };
  EXPECT_LT(at("/add1").right(), at("/add").left());
}

TEST_F(LevelSceneTest, WhatComesWithoutAPlaceLiesOnNothing) {
  for (int i = 0; i < 20; ++i) host.run("orvCompound g / -addNode core::math::add");
  scene.forEachBox([this](const BoxItem& one) {
    scene.boxes().search(one.bounds, [&one](const BoxItem& other) {
      if (other.kind == BoxKind::Node) {
        EXPECT_EQ(&one, &other);
      }
    });
  });
}

TEST_F(LevelSceneTest, NotesWithoutAPlaceLieOnNothing) {
  for (int i = 0; i < 3; ++i) host.run("orvCompound g / -addNode core::math::add");
  host.run("orvCompound g / -addBackdrop one -addStickyNote two -addStickyNote three");
  LevelScene fresh(theme);
  fresh.show(&container().top());
  for (const LevelScene* each : {&scene, &fresh}) {
    each->forEachNote([each](const NoteItem& note) {
      int touching = 0;
      each->boxes().search(note.bounds, [&touching](const BoxItem&) { ++touching; });
      each->notes().search(note.bounds, [&touching](const NoteItem&) { ++touching; });
      EXPECT_EQ(touching, 1) << note.text.toStdString();
    });
  }
}

TEST_F(LevelSceneTest, AValueTouchesItsNodeAlone) {
  host.run("orvCompound g / -addNode core::math::add -addNode core::math::add");
  host.run("orvNode g /add -setMetaData editor.position 0,0");
  host.run("orvNode g /add1 -setMetaData editor.position 5000,5000");
  host.run("orvConnect g /add.result /add1.a");
  host.run("orvNode g /add1 -setPortDefaultValues b 2");
  EXPECT_EQ(touched.bounds(), box("/add1")->bounds);
}

TEST_F(LevelSceneTest, MembersOfAFanInPortHaveRowsOfTheirOwn) {
  host.run("orvCompound g / -addNode core::array::build -createInputPort x float");
  EXPECT_EQ(box("/build")->rows, 1);
  host.run("orvConnect g /.x /build.elements");
  EXPECT_EQ(box("/build")->rows, 2);
  EXPECT_EQ(box("/build")->arriving.size(), 1u);
}

TEST_F(LevelSceneTest, ComponentsShowWhenTheyAreAskedForOrConnected) {
  host.run("orvCompound g / -createOutputPort colour color3 -createInputPort x float");
  const orvlib::PortObject& port = *container().top().compound()->outputs().at(0);
  scene.toggleOpen(port);
  EXPECT_EQ(scene.outputs()->rows, 5);
  scene.toggleOpen(port);
  EXPECT_EQ(scene.outputs()->rows, 2);
  host.run("orvConnect g /.x /.colour.g");
  EXPECT_EQ(scene.outputs()->rows, 5);
  EXPECT_EQ(scene.wireCount(), 1u);
}

}  // namespace
