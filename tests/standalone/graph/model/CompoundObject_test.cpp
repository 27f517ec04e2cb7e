#include "standalone/graph/model/CompoundObject.h"

#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

class CompoundObjectTest : public GraphFixture {
 protected:
  void lock(CompoundObject& compound, std::string value) {
    Properties set;
    set.set("locked", {std::move(value)});
    ASSERT_TRUE(edits_.run(SetMetadata{CompoundRef(&compound), set}));
  }
};

TEST_F(CompoundObjectTest, IsTheInsideOfItsNode) {
  CompoundObject* group = addCompound(top(), "group");
  EXPECT_EQ(group->getAsNode().get(), group->node());
  EXPECT_EQ(group->node()->asCompound().get(), group);
  EXPECT_STREQ(group->getName(), "group");
  group->setName("crowd");
  EXPECT_STREQ(group->node()->getName(), "crowd");
}

TEST_F(CompoundObjectTest, ListsItsNodesInTheOrderInWhichTheyCame) {
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* one = add(*group, "core::math::add", "one");
  NodeObject* two = add(*group, "core::math::add", "two");
  ORV_v1::NodeList& nodes = group->getChildNodes();
  ASSERT_EQ(nodes.size(), 2u);
  EXPECT_EQ(nodes[0u].get(), one);
  EXPECT_EQ(nodes["two"].get(), two);
  EXPECT_TRUE(nodes["three"] == nullptr);
  EXPECT_TRUE(nodes[static_cast<const char*>(nullptr)] == nullptr);
  EXPECT_TRUE(nodes[2u] == nullptr);
}

TEST_F(CompoundObjectTest, IsEditableUnlessItIsLocked) {
  CompoundObject* group = addCompound(top(), "group");
  EXPECT_TRUE(group->isEditable());
  lock(*group, "false");
  EXPECT_TRUE(group->isEditable());
  lock(*group, "true");
  EXPECT_FALSE(group->isEditable());
}

TEST_F(CompoundObjectTest, IsNotEditableInsideALockedOne) {
  CompoundObject* group = addCompound(top(), "group");
  CompoundObject* inner = addCompound(*group, "inner");
  lock(*group, "true");
  EXPECT_FALSE(inner->isEditable());
  EXPECT_TRUE(top().isEditable());
}

TEST_F(CompoundObjectTest, GetsStatePorts) {
  CompoundObject* group = addCompound(top(), "group");
  const TypeRef type = graph_.core().findType("float");
  ASSERT_TRUE(group->addStatePorts("was", "is", type));
  ASSERT_EQ(group->compoundInputs().size(), 1u);
  EXPECT_STREQ(group->compoundInputs()[0u]->getName(), "was");
  EXPECT_STREQ(group->compoundOutputs()[0u]->getName(), "is");
  EXPECT_EQ(group->node()->port("was")->statePartner(), group->node()->port("is"));
}

TEST_F(CompoundObjectTest, GetsNoStatePortsWithoutATypeOrWhenItIsLocked) {
  CompoundObject* group = addCompound(top(), "group");
  EXPECT_FALSE(group->addStatePorts("was", "is", TypeRef()));
  lock(*group, "true");
  EXPECT_FALSE(group->addStatePorts("was", "is", graph_.core().findType("float")));
  EXPECT_EQ(group->node()->inputList().count(), 0u);
}

TEST_F(CompoundObjectTest, LosesAPortGivenByEitherFace) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* in = addPort(*group, PortDirection::Input, "in", "float");
  PortObject* out = addPort(*group, PortDirection::Output, "out", "float");
  ASSERT_TRUE(connect(in->twin(), out->twin()));
  using Handle = ORV_v1::AddRefWrapper<ORV_v1::Port>;
  EXPECT_TRUE(group->removePort(Handle(in->twin())));
  EXPECT_EQ(group->inputs().count(), 0u);
  EXPECT_FALSE(out->twin()->hasPeers());
  EXPECT_TRUE(group->removePort(Handle(out)));
  EXPECT_EQ(group->node()->outputList().count(), 0u);
}

TEST_F(CompoundObjectTest, RefusesToRemoveWhatIsNotItsPort) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* color = addPort(*group, PortDirection::Input, "in", "color3");
  using Handle = ORV_v1::AddRefWrapper<ORV_v1::Port>;
  EXPECT_FALSE(top().removePort(Handle(color)));
  EXPECT_FALSE(group->removePort(Handle(color->child("r"))));
  EXPECT_FALSE(group->removePort(Handle()));
}

TEST_F(CompoundObjectTest, LosesAStatePortAndKeepsTheOther) {
  CompoundObject* group = addCompound(top(), "group");
  ASSERT_TRUE(group->addStatePorts("was", "is", graph_.core().findType("float")));
  using Handle = ORV_v1::AddRefWrapper<ORV_v1::Port>;
  EXPECT_TRUE(group->removePort(Handle(group->node()->port("is"))));
  EXPECT_EQ(group->node()->port("was")->statePartner(), nullptr);
}

class FormerStatePorts : public CompoundObjectTest {
 protected:
  FormerStatePorts()
      : group_(addCompound(top(), "group")), float_(graph_.core().findType("float")) {
    EXPECT_TRUE(group_->addStatePorts("was", "is", float_));
    was_ = PortRef(port("was"));
    is_ = PortRef(port("is"));
  }

  PortObject* port(const char* name) { return group_->node()->port(name); }
  void remove(const char* name) {
    EXPECT_TRUE(group_->removePort(ORV_v1::AddRefWrapper<ORV_v1::Port>(port(name))));
  }
  void removeBoth() {
    remove("is");
    remove("was");
  }

  CompoundObject* group_;
  TypeRef float_;
  PortRef was_, is_;
};

TEST_F(FormerStatePorts, ComeBackAsTheSameObjectsWhenTheyAreAskedForAgain) {
  removeBoth();
  ASSERT_TRUE(group_->addStatePorts("was", "is", float_));
  EXPECT_EQ(port("was"), was_.get());
  EXPECT_EQ(port("is"), is_.get());
  EXPECT_EQ(was_->statePartner(), is_.get());
}

TEST_F(FormerStatePorts, ComeBackInTheReverseOrderOfTheirRemoval) {
  ASSERT_TRUE(group_->addStatePorts("then", "now", float_));
  const PortRef then(port("then"));
  remove("now");
  remove("then");
  removeBoth();
  ASSERT_TRUE(group_->addStatePorts("was", "is", float_));
  ASSERT_TRUE(group_->addStatePorts("then", "now", float_));
  EXPECT_EQ(port("was"), was_.get());
  EXPECT_EQ(port("then"), then.get());
}

TEST_F(FormerStatePorts, AreOfNoUseForOtherNames) {
  removeBoth();
  ASSERT_TRUE(group_->addStatePorts("then", "is", float_));
  EXPECT_NE(port("then"), was_.get());
  EXPECT_STREQ(was_->getName(), "was");
}

TEST_F(FormerStatePorts, AreOfNoUseForAnotherType) {
  removeBoth();
  ASSERT_TRUE(group_->addStatePorts("was", "is", graph_.core().findType("int")));
  EXPECT_NE(port("was"), was_.get());
  EXPECT_STREQ(port("was")->getDataType()->getName(), "int");
}

TEST_F(FormerStatePorts, AreOfNoUseWhenOneOfThemIsStillThere) {
  remove("is");
  ASSERT_TRUE(group_->addStatePorts("was", "is", float_));
  EXPECT_EQ(port("was"), was_.get());
  EXPECT_EQ(was_->statePartner(), nullptr);
  EXPECT_EQ(port("was1")->statePartner(), port("is"));
}

TEST_F(FormerStatePorts, AreOfNoUseWithAValueOfTheirOwn) {
  ASSERT_TRUE(edits_.run(
      SetPortValue{was_, std::make_unique<const Value>(Value(zeroValue(was_->valueType())))}));
  removeBoth();
  ASSERT_TRUE(group_->addStatePorts("was", "is", float_));
  EXPECT_NE(port("was"), was_.get());
  EXPECT_EQ(port("was")->ownValue(), nullptr);
}

TEST_F(CompoundObjectTest, OutlivesItsNode) {
  CompoundRef kept;
  {
    const NodeRef node = factory().makeCompound("gone");
    kept = CompoundRef(node->compound());
    EXPECT_TRUE(edits_.run(InsertNode{{kept, factory().makeCompound("child"), 0}}));
    edits_ = Transaction();
  }
  EXPECT_TRUE(kept->getAsNode() == nullptr);
  EXPECT_STREQ(kept->getName(), "");
  EXPECT_TRUE(kept->isEditable());
  EXPECT_FALSE(kept->activeChangeBracket());
}

TEST_F(CompoundObjectTest, CollectsNodesInListsOfACaller) {
  NodeObject* one = add(top(), "core::math::add", "one");
  auto list = ORV_v1::NodeList::createNew(nullptr);
  using Handle = ORV_v1::AddRefWrapper<ORV_v1::Node>;
  EXPECT_TRUE(list->add(Handle(one)));
  EXPECT_FALSE(list->add(Handle(one)));
  EXPECT_FALSE(list->add(Handle()));
  EXPECT_FALSE(top().getChildNodes().add(Handle(one)));
  EXPECT_EQ(list->size(), 1u);
  unsigned int visited = 0;
  for (const auto& node : *list) visited += node.get() == one;
  EXPECT_EQ(visited, 1u);
}

class Nesting : public GraphFixture {
 protected:
  bool hasRoom(const CompoundObject& level, const CompoundObject& compound, unsigned int deepest) {
    return level.hasRoomFor(*compound.node(), deepest);
  }
  void remove(CompoundObject& compound) {
    ASSERT_TRUE(edits_.run(
        RemoveNode{{CompoundRef(compound.node()->parent()), NodeRef(compound.node()), 0}}));
  }
};

TEST_F(Nesting, IsCountedFromTheTopAndFromBelow) {
  EXPECT_EQ(top().countHeight(), 0u);
  add(*addNested(top(), "low", 2), "core::math::add", "sum");
  CompoundObject* innermost = addNested(top(), "high", 5);
  EXPECT_EQ(innermost->depth(), 5u);
  EXPECT_EQ(innermost->countHeight(), 0u);
  EXPECT_EQ(graph_.findCompound("/high")->countHeight(), 4u);
  EXPECT_EQ(top().countHeight(), 5u);
}

TEST_F(Nesting, HasRoomDownToTheDeepestLevel) {
  addNested(top(), "high", 5);
  CompoundObject* low = addNested(top(), "low", 3);
  EXPECT_TRUE(hasRoom(*low, *graph_.findCompound("/high"), 8));
  EXPECT_FALSE(hasRoom(*low, *graph_.findCompound("/high"), 7));
  EXPECT_FALSE(hasRoom(*low, *graph_.findCompound("/high"), 3));
  EXPECT_TRUE(hasRoom(*low, *graph_.findCompound("/high/high/high"), 6));
  EXPECT_TRUE(low->hasRoomFor(*add(top(), "core::math::add", "sum"), 0));
}

TEST_F(Nesting, HasRoomAgainForWhatHasBecomeLower) {
  CompoundObject* innermost = addNested(top(), "high", 5);
  CompoundObject* low = addNested(top(), "low", 3);
  remove(*innermost);
  EXPECT_TRUE(hasRoom(*low, *graph_.findCompound("/high"), 7));
  addCompound(*graph_.findCompound("/high/high/high/high"), "again");
  EXPECT_FALSE(hasRoom(*low, *graph_.findCompound("/high"), 7));
}

TEST_F(Nesting, IsThatOfWhateverComesInAtOnce) {
  CompoundObject* low = addNested(top(), "low", 3);
  const NodeRef away = factory().makeCompound("away");
  addNested(*away->compound(), "high", 4);
  insert(*low, away);
  EXPECT_FALSE(hasRoom(top(), *graph_.findCompound("/low"), 7));
  EXPECT_TRUE(hasRoom(top(), *graph_.findCompound("/low"), 8));
}

TEST_F(Nesting, HasRoomForTheContentOfAnotherDownToTheDeepestLevel) {
  constexpr unsigned int kDeepest = CompoundObject::kDeepest;
  CompoundObject* innermost = addNested(top(), "deep", kDeepest);
  CompoundObject* flat = addCompound(top(), "flat");
  add(*flat, "core::math::add", "sum");
  EXPECT_TRUE(innermost->hasRoomForContentOf(*flat));
  addCompound(*flat, "inner");
  EXPECT_FALSE(innermost->hasRoomForContentOf(*flat));
  EXPECT_TRUE(innermost->node()->parent()->hasRoomForContentOf(*flat));
  EXPECT_FALSE(addCompound(*innermost, "deeper")->hasRoomForContentOf(*innermost));
}

}  // namespace
}  // namespace orvlib
