#include "standalone/host/scene/SelectionEdit.h"

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using vesk::testing::addNode;
using vesk::testing::namesOf;

class SelectionEdits : public ::testing::Test {
 protected:
  SelectionEdits() {
    for (const char* name : {"a", "b", "c", "d"}) nodes_.push_back(addNode(scene_, "group", name));
    for (int i : {2, 0, 1}) scene_.selection().add(nodes_[i]);
  }

  std::vector<std::string> selected() const { return namesOf(scene_.selection().nodes()); }

  MessageChannel messages_;
  SceneEvents events_;
  Scene scene_{messages_, events_};
  std::vector<SceneNodePtr> nodes_;
  SelectionEdit edit_{scene_};
};

TEST_F(SelectionEdits, SelectBehindAllOthers) {
  edit_.select(nodes_[3]);
  EXPECT_THAT(selected(), ElementsAre("c", "a", "b", "d"));
}

TEST_F(SelectionEdits, LeaveASelectedNodeWhereItIs) {
  edit_.select(nodes_[2]);
  EXPECT_THAT(selected(), ElementsAre("c", "a", "b"));
  edit_.undo();
  EXPECT_THAT(selected(), ElementsAre("c", "a", "b"));
}

TEST_F(SelectionEdits, PutADeselectedNodeBackAtItsPlace) {
  edit_.deselect(nodes_[0]);
  EXPECT_THAT(selected(), ElementsAre("c", "b"));
  edit_.undo();
  EXPECT_THAT(selected(), ElementsAre("c", "a", "b"));
}

TEST_F(SelectionEdits, CanBeRedoneAgainAndAgain) {
  edit_.clear();
  edit_.select(nodes_[3]);
  edit_.select(nodes_[2]);
  for (int i = 0; i < 3; ++i) {
    EXPECT_THAT(selected(), ElementsAre("d", "c"));
    edit_.undo();
    EXPECT_THAT(selected(), ElementsAre("c", "a", "b"));
    edit_.redo();
  }
}

TEST_F(SelectionEdits, PassOverNodesThatAreGone) {
  edit_.clear();
  scene_.remove(nodes_[0]);
  edit_.undo();
  EXPECT_THAT(selected(), ElementsAre("c", "b"));
  edit_.redo();
  EXPECT_THAT(selected(), IsEmpty());
}

}  // namespace
}  // namespace vesk
