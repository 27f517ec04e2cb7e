#include "standalone/host/scene/Scene.h"

#include <chrono>

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using vesk::testing::addNode;
using vesk::testing::namesIn;
using vesk::testing::NotePayload;
using vesk::testing::noteType;

class SceneNodes : public ::testing::Test {
 protected:
  SceneNodes() { scene_.types().add(noteType(&diary_)); }

  SceneNodePtr add(std::string_view name) { return addNode(scene_, "group", name); }

  std::vector<std::string> diary_;
  MessageChannel messages_;
  vesk::testing::MessageLog log_{messages_};
  SceneEvents events_;
  Scene scene_{messages_, events_};
};

TEST_F(SceneNodes, StandInCreationOrder) {
  for (const char* name : {"b", "a", "c"}) add(name);
  EXPECT_THAT(namesIn(scene_), ElementsAre("b", "a", "c"));
}

TEST_F(SceneNodes, AreFoundByNameAndByUuid) {
  const SceneNodePtr node = add("a");
  EXPECT_EQ(scene_.find("a"), node);
  EXPECT_EQ(scene_.findByUuid(node->uuid()), node);
  EXPECT_EQ(scene_.find("b"), nullptr);
  EXPECT_EQ(scene_.find(""), nullptr);
  EXPECT_EQ(scene_.findByUuid(SceneNode::makeUuid()), nullptr);
}

TEST_F(SceneNodes, HaveUuidsWithoutBraces) {
  const std::string uuid = add("a")->uuid();
  EXPECT_EQ(uuid.size(), 36u);
  EXPECT_TRUE(SceneNode::isUuid(uuid));
  EXPECT_FALSE(SceneNode::isUuid("{" + uuid + "}"));
  EXPECT_FALSE(SceneNode::isUuid("6BA7B810-9DAD-11D1-80B4-00C04FD430C8"));
  EXPECT_FALSE(SceneNode::isUuid(""));
  EXPECT_NE(uuid, add("a")->uuid());
}

TEST_F(SceneNodes, GetCleanAndUniqueNames) {
  EXPECT_EQ(add("add")->name(), "add");
  EXPECT_EQ(add("add")->name(), "add1");
  EXPECT_EQ(add("my node")->name(), "my_node");
  EXPECT_EQ(add("2nd")->name(), "_2nd");
}

TEST_F(SceneNodes, WithoutANameAreNamedAfterTheirType) {
  EXPECT_EQ(add("")->name(), "group");
  EXPECT_EQ(add("")->name(), "group1");
}

TEST_F(SceneNodes, ThatWereMadeAreNotInTheSceneYet) {
  const SceneNodePtr node = scene_.makeNode(*scene_.types().find("note"), "a");
  EXPECT_FALSE(node->isInScene());
  EXPECT_EQ(scene_.size(), 0u);
  EXPECT_THAT(diary_, IsEmpty());
}

TEST_F(SceneNodes, ThatAreRemovedComeBackAtTheirPlace) {
  const SceneNodePtr first = add("a");
  const SceneNodePtr second = add("b");
  add("c");
  EXPECT_TRUE(scene_.remove(second));
  EXPECT_TRUE(scene_.remove(first));
  EXPECT_THAT(namesIn(scene_), ElementsAre("c"));
  EXPECT_EQ(scene_.find("b"), nullptr);
  EXPECT_EQ(scene_.findByUuid(second->uuid()), nullptr);
  EXPECT_TRUE(scene_.insert(second));
  EXPECT_TRUE(scene_.insert(first));
  EXPECT_THAT(namesIn(scene_), ElementsAre("a", "b", "c"));
  EXPECT_EQ(scene_.find("b"), second);
}

TEST_F(SceneNodes, AreNotInsertedOrRemovedTwice) {
  const SceneNodePtr node = add("a");
  EXPECT_FALSE(scene_.insert(node));
  EXPECT_TRUE(scene_.remove(node));
  EXPECT_FALSE(scene_.remove(node));
  EXPECT_EQ(scene_.size(), 0u);
}

TEST_F(SceneNodes, AreRefusedWhenTheirNameWasTakenMeanwhile) {
  const SceneNodePtr node = add("a");
  scene_.remove(node);
  add("a");
  EXPECT_FALSE(scene_.insert(node));
  EXPECT_FALSE(node->isInScene());
  EXPECT_EQ(scene_.size(), 1u);
}

TEST_F(SceneNodes, AreRefusedWithTheUuidOfAnother) {
  const SceneNodePtr node = add("a");
  EXPECT_FALSE(scene_.insert(std::make_shared<SceneNode>("group", "b", node->uuid(), nullptr)));
  EXPECT_EQ(scene_.findByUuid(node->uuid()), node);
  EXPECT_EQ(scene_.size(), 1u);
}

TEST_F(SceneNodes, LeaveTheSelectionWhenTheyLeaveTheScene) {
  const SceneNodePtr node = add("a");
  scene_.selection().add(node);
  scene_.remove(node);
  EXPECT_EQ(scene_.selection().size(), 0u);
}

TEST_F(SceneNodes, TakeAFreeNameWhenRenamed) {
  add("b");
  const SceneNodePtr node = add("a");
  scene_.rename(node, "b");
  EXPECT_EQ(node->name(), "b1");
  EXPECT_EQ(scene_.find("a"), nullptr);
  EXPECT_EQ(scene_.find("b1"), node);
}

TEST_F(SceneNodes, MayBeRenamedToTheNameTheyHave) {
  add("b");
  const SceneNodePtr node = add("b1");
  scene_.rename(node, "b");
  EXPECT_EQ(node->name(), "b1");
  scene_.rename(node, "b1");
  EXPECT_EQ(node->name(), "b1");
  EXPECT_EQ(scene_.find("b1"), node);
}

TEST_F(SceneNodes, TakeTheNameOfTheirTypeForAnEmptyName) {
  const SceneNodePtr node = add("a");
  scene_.rename(node, "");
  EXPECT_EQ(node->name(), "group");
}

TEST_F(SceneNodes, RefuseTheNameOfAnotherNodeWhenItMustBeExact) {
  const SceneNodePtr node = add("a");
  add("b");
  EXPECT_FALSE(scene_.setName(node, "b"));
  EXPECT_EQ(node->name(), "a");
  EXPECT_TRUE(scene_.setName(node, "c"));
  EXPECT_EQ(scene_.find("c"), node);
}

TEST_F(SceneNodes, TellTheirPayloadWhatHappensToThem) {
  const SceneNodePtr node = addNode(scene_, "note", "a");
  scene_.rename(node, "b");
  scene_.rename(node, "b");
  scene_.remove(node);
  scene_.insert(node);
  EXPECT_THAT(diary_, ElementsAre("entered a", "renamed b", "left b", "entered b"));
}

TEST_F(SceneNodes, AreGoneFromTheSceneWhenTheirPayloadHearsOfIt) {
  class Watch : public NotePayload {
   public:
    explicit Watch(Scene& scene) : scene_(scene) {}
    void enteredScene(SceneNode& node) override { found = scene_.findByUuid(node.uuid()).get(); }
    void leftScene(SceneNode& node) override {
      found = node.isInScene() ? &node : scene_.findByUuid(node.uuid()).get();
    }
    SceneNode* found = nullptr;

   private:
    Scene& scene_;
  };
  scene_.types().add({"watch", "Looks.", [this] { return std::make_unique<Watch>(scene_); }});
  const SceneNodePtr node = addNode(scene_, "watch", "w");
  EXPECT_EQ(static_cast<Watch*>(node->payload())->found, node.get());
  scene_.remove(node);
  EXPECT_EQ(static_cast<Watch*>(node->payload())->found, nullptr);
}

TEST_F(SceneNodes, LeaveInReverseOrderWhenTheSceneEnds) {
  {
    Scene other(messages_, events_);
    other.types().add(noteType(&diary_));
    addNode(other, "note", "a");
    addNode(other, "note", "b");
  }
  EXPECT_THAT(diary_, ElementsAre("entered a", "entered b", "left b", "left a"));
}

TEST_F(SceneNodes, MakeTheSceneModified) {
  EXPECT_FALSE(scene_.isModified());
  const SceneNodePtr node = add("a");
  EXPECT_TRUE(scene_.isModified());
  scene_.setModified(false);
  scene_.rename(node, "b");
  EXPECT_TRUE(scene_.isModified());
  scene_.setModified(false);
  scene_.remove(node);
  EXPECT_TRUE(scene_.isModified());
}

TEST_F(SceneNodes, TellTheSceneThatTheirContentChanged) {
  const SceneNodePtr node = add("a");
  scene_.setModified(false);
  node->contentChanged();
  EXPECT_TRUE(scene_.isModified());
  scene_.remove(node);
  scene_.setModified(false);
  node->contentChanged();
  EXPECT_FALSE(scene_.isModified());
}

TEST_F(SceneNodes, TheSelectionIsNoModification) {
  const SceneNodePtr node = add("a");
  scene_.setModified(false);
  scene_.selection().add(node);
  EXPECT_FALSE(scene_.isModified());
}

TEST_F(SceneNodes, AHundredThousandOfOneNameComeAndGoInLinearTime) {
  constexpr int kCount = 100'000;
  const auto start = std::chrono::steady_clock::now();
  std::vector<SceneNodePtr> nodes;
  for (int i = 0; i < kCount; ++i) {
    nodes.push_back(add("add"));
    scene_.selection().add(nodes.back());
  }
  EXPECT_EQ(nodes.back()->name(), "add" + std::to_string(kCount - 1));
  for (const SceneNodePtr& node : nodes) scene_.remove(node);
  for (const SceneNodePtr& node : nodes) scene_.insert(node);
  EXPECT_EQ(scene_.size(), static_cast<std::size_t>(kCount));
  // Quadratic work would take minutes.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
}  // namespace vesk
