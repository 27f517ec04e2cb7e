#include "standalone/graph/published/Following.h"

#include <gmock/gmock.h>

#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/graph/published/PublishedFixture.h"

namespace orvlib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// core::soft is published, and /one refers to it, between /from and /to.
class Following : public PublishedFixture {
 protected:
  Following() {
    publish();
    one_ = instance("core::soft", "one");
    add(top(), "core::math::add", "from");
    add(top(), "core::math::add", "to");
    connect("/from.result", "/one.size");
    connect("/one.result", "/to.a");
  }

  void removeSize() {
    Transaction edits;
    ASSERT_TRUE(runRemovePort(edits, *port("/soft.size")));
  }

  CompoundObject* one_;
};

TEST_F(Following, AReferenceFollowsWhatIsPublishedInItsPlace) {
  const PortObject* size = port("/one.size");
  add(*soft_, "core::math::multiply", "more");
  addPort(*soft_, PortDirection::Input, "extra", "float");
  EXPECT_EQ(publish("soft", "", true), "");
  EXPECT_TRUE(one_->nodes().find("more"));
  EXPECT_TRUE(one_->node()->port("extra"));
  EXPECT_EQ(port("/one.size"), size);
  EXPECT_TRUE(size->hasPeers());
  EXPECT_TRUE(port("/to.a")->hasPeers());
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(Following, ACopyDoesNot) {
  one_->setIsReferenced(false);
  add(*soft_, "core::math::multiply", "more");
  publish("soft", "", true);
  EXPECT_FALSE(one_->nodes().find("more"));
  EXPECT_TRUE(one_->canResetToFactory());
}

TEST_F(Following, AReferenceInsideAnotherFollows) {
  CompoundObject* outer = addCompound(top(), "outer");
  insert(*outer, factory().make(*graph_.core().findDefinition("core::soft"), "inner"));
  publish(*outer, "outer");
  CompoundObject* two = instance("core::outer", "two");
  add(*soft_, "core::math::multiply", "more");
  publish("soft", "", true);
  EXPECT_TRUE(two->nodes().find("inner")->compound()->nodes().find("more"));
}

TEST_F(Following, AConnectionThatGoesIsTold) {
  removeSize();
  publish("soft", "", true);
  EXPECT_FALSE(one_->node()->port("size"));
  EXPECT_THAT(told_, ElementsAre("the compound '/one' lost the connection from '/from.result' to "
                                 "'/one.size' by following 'core::soft'"));
}

TEST_F(Following, APortOfAnotherTypeKeepsItsConnectionIfItCan) {
  PortObject* size = port("/soft.size");
  PortObject* inner = size->twin();
  Transaction edits;
  ASSERT_TRUE(runDisconnectAll(edits, *inner));
  ASSERT_TRUE(edits.run(SetPortType(PortRef(size), graph_.core().findType("int"), nullptr)));
  publish("soft", "", true);
  EXPECT_EQ(port("/one.size")->valueType().name, "int");
  EXPECT_TRUE(port("/one.size")->hasPeers());
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(Following, ARebuildHasReferencesFollowTheirFile) {
  add(*soft_, "core::math::multiply", "more");
  ORV_v1::String error;
  ASSERT_TRUE(soft_->save(file("core.soft.yaml").c_str(), error)) << error.toChar();
  EXPECT_FALSE(one_->nodes().find("more"));
  fresh_.find("standard")->forceRebuildCompounds();
  EXPECT_TRUE(one_->nodes().find("more"));
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(Following, ARebuildWithoutChangesTouchesNothing) {
  const auto revision = graph_.revision();
  fresh_.find("standard")->forceRebuildCompounds();
  EXPECT_EQ(graph_.revision(), revision);
}

TEST_F(Following, AReferenceWhoseDefinitionIsGoneStaysAsItWas) {
  std::filesystem::remove(file("core.soft.yaml"));
  const std::string before = stored();
  fresh_.find("standard")->forceRebuildCompounds();
  EXPECT_EQ(stored(), before);
  EXPECT_FALSE(isOffered("core::soft"));
}

TEST_F(Following, OneThatCannotFollowStaysAsItWasAndIsTold) {
  const unsigned int nodes = one_->nodes().count();
  add(*soft_, "core::math::multiply", "more");
  ORV_v1::String error;
  soft_->save(file("core.soft.yaml").c_str(), error);
  {
    const ArmedFault fault("edit moveNode", 1);
    fresh_.find("standard")->forceRebuildCompounds();
  }
  EXPECT_EQ(one_->nodes().count(), nodes);
  EXPECT_TRUE(port("/one.size")->hasPeers());
  EXPECT_THAT(told_, ElementsAre("the compound '/one' stays as it was, as it cannot follow "
                                 "'core::soft'"));
}

TEST_F(Following, FormerContentComesBackAfterIt) {
  soft_->setIsReferenced(true);
  CompoundObject* source = instance("core::soft", "source");
  source->setIsReferenced(false);
  add(*source, "core::math::multiply", "more");
  EXPECT_EQ(publish(*source, "soft", "", true), "");
  EXPECT_TRUE(soft_->nodes().find("more"));
  EXPECT_TRUE(soft_->setIsReferenced(false));
  EXPECT_FALSE(soft_->nodes().find("more"));
  EXPECT_TRUE(soft_->nodes().find("twice"));
}

TEST_F(Following, AReferenceBelowWhichThereIsNoRoomStaysAsItWas) {
  Transaction wires;
  for (const char* path : {"/one.size", "/one.result"}) {
    ASSERT_TRUE(runDisconnectAll(wires, *port(path)));
  }
  CompoundObject* level = addNested(top(), "c", CompoundObject::kDeepest - 1);
  ASSERT_TRUE(edits_.run(MoveNode{NodeRef(one_->node()), CompoundRef(level), 0, "one"}));
  addCompound(*soft_, "inner");
  EXPECT_EQ(publish("soft", "", true), "");
  EXPECT_FALSE(one_->nodes().find("inner"));
  EXPECT_TRUE(one_->nodes().find("twice"));
  EXPECT_THAT(told_, ElementsAre("the compound '" + one_->node()->fullPath() +
                                 "' stays as it was, as it cannot follow 'core::soft'"));
}

}  // namespace
}  // namespace orvlib
