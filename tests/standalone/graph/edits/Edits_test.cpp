#include "standalone/graph/edits/Edits.h"

#include "standalone/graph/edits/Transaction.h"
#include "standalone/graph/storage/GraphText.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

/// Each primitive edit, and when it says that it does not fit.
class Edits : public GraphFixture {
 protected:
  NodeObject* addSum(std::string name) { return add(top(), "core::math::add", std::move(name)); }

  /// Runs the edit, which must fit, and gives it to be taken back.
  template <class One>
  Transaction run(One edit) {
    Transaction edits;
    EXPECT_TRUE(edits.run(std::move(edit)));
    return edits;
  }

  template <class One>
  bool fits(One edit) {
    Transaction edits;
    const bool done = edits.run(std::move(edit));
    edits.rollback();
    return done;
  }

  NodeRef fresh(std::string name) {
    return factory().makePlain(*graph_.core().findDefinition("core::math::add"), std::move(name));
  }
  CompoundRef topRef() { return CompoundRef(&top()); }
};

TEST_F(Edits, InsertANodeAtItsPlace) {
  addSum("one");
  addSum("three");
  const NodeRef two = fresh("two");
  Transaction edits = run(InsertNode{{topRef(), two, 1}});
  EXPECT_EQ(top().nodes().at(1), two.get());
  EXPECT_EQ(two->parent(), &top());
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(top().nodes().count(), 2u);
  EXPECT_EQ(two->parent(), nullptr);
}

TEST_F(Edits, DoNotInsertANodeTwiceOrUnderATakenName) {
  NodeObject* one = addSum("one");
  EXPECT_FALSE(fits(InsertNode{{topRef(), NodeRef(one), 0}}));
  EXPECT_FALSE(fits(InsertNode{{topRef(), fresh("one"), 0}}));
}

TEST_F(Edits, DoNotRemoveANodeThatIsConnectedOrElsewhere) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  ASSERT_TRUE(connect(one->port("result"), two->port("a")));
  EXPECT_FALSE(fits(RemoveNode{{topRef(), NodeRef(one), 0}}));
  CompoundObject* group = addCompound(top(), "group");
  EXPECT_FALSE(fits(RemoveNode{{CompoundRef(group), NodeRef(addSum("three")), 0}}));
}

TEST_F(Edits, MoveANodeWithItsConnections) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  ASSERT_TRUE(connect(one->port("result"), two->port("a")));
  CompoundObject* group = addCompound(top(), "group");
  Transaction edits = run(MoveNode{NodeRef(one), CompoundRef(group), 0, "uno"});
  EXPECT_EQ(one->fullPath(), "/group/uno");
  EXPECT_EQ(two->port("a")->source(), one->port("result"));
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(one->fullPath(), "/one");
  EXPECT_EQ(top().nodes().indexOf(one), 0u);
}

TEST_F(Edits, DoNotMoveANodeUnderATakenName) {
  CompoundObject* group = addCompound(top(), "group");
  add(*group, "core::math::add", "one");
  EXPECT_FALSE(fits(MoveNode{NodeRef(addSum("two")), CompoundRef(group), 0, "one"}));
}

TEST_F(Edits, PlaceAndRenameAnnotations) {
  const AnnotationRef note(new AnnotationObject(AnnotationKind::Backdrop, "note"));
  Transaction placing = run(InsertAnnotation{{topRef(), note, 0}});
  Transaction renaming = run(RenameAnnotation{note, "memo"});
  EXPECT_EQ(top().annotations().find("memo"), note.get());
  Transaction removing = run(RemoveAnnotation{{topRef(), note, 0}});
  EXPECT_EQ(top().annotations().count(), 0u);
  ASSERT_TRUE(removing.revert() && renaming.revert());
  EXPECT_EQ(top().annotations().find("note"), note.get());
  ASSERT_TRUE(placing.revert());
  EXPECT_EQ(note->parent(), nullptr);
}

TEST_F(Edits, DoNotGiveTwoAnnotationsOneName) {
  const AnnotationRef one(new AnnotationObject(AnnotationKind::Backdrop, "one"));
  const AnnotationRef two(new AnnotationObject(AnnotationKind::StickyNote, "two"));
  run(InsertAnnotation{{topRef(), one, 0}});
  run(InsertAnnotation{{topRef(), two, 1}});
  EXPECT_FALSE(fits(RenameAnnotation{two, "one"}));
  EXPECT_FALSE(fits(InsertAnnotation{{topRef(), one, 0}}));
}

TEST_F(Edits, PlaceACompoundsPortWithBothFaces) {
  CompoundObject* group = addCompound(top(), "group");
  const PortRef port =
      factory().makeCompoundPort(PortDirection::Output, "out", graph_.core().findType("float"));
  Transaction edits = run(InsertPort{{NodeRef(group->node()), port, 0}});
  EXPECT_EQ(group->node()->outputList().at(0), port.get());
  EXPECT_EQ(group->outputs().at(0), port->twin());
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(group->outputs().count(), 0u);
  EXPECT_EQ(port->node(), nullptr);
}

TEST_F(Edits, DoNotRemoveAPortThatIsInUse) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* in = addPort(*group, PortDirection::Input, "in", "float");
  NodeObject* inner = add(*group, "core::math::add", "inner");
  ASSERT_TRUE(connect(in->twin(), inner->port("a")));
  EXPECT_FALSE(fits(RemovePort{{NodeRef(group->node()), PortRef(in), 0}}));
}

TEST_F(Edits, RenameAndMovePorts) {
  PortObject* one = addPort(top(), PortDirection::Input, "one", "float");
  PortObject* two = addPort(top(), PortDirection::Input, "two", "float");
  EXPECT_FALSE(fits(RenamePort{PortRef(two), "one"}));
  Transaction renaming = run(RenamePort{PortRef(two), "dos"});
  Transaction moving = run(MovePort{PortRef(two), 0});
  EXPECT_EQ(top().inputs().at(0), two->twin());
  EXPECT_EQ(top().inputs().find("dos"), two->twin());
  ASSERT_TRUE(moving.revert() && renaming.revert());
  EXPECT_EQ(graph_.top().inputList().at(0), one);
  EXPECT_EQ(graph_.top().port("two"), two);
}

TEST_F(Edits, ChangeAValueWithItsType) {
  PortObject* port = addPort(top(), PortDirection::Input, "in", "float");
  Transaction typing = run(SetPortType(PortRef(port), graph_.core().findType("string"), nullptr));
  run(SetPortValue{PortRef(port), std::make_unique<const Value>(Texts{"hello"})});
  ASSERT_TRUE(typing.revert());
  EXPECT_EQ(port->ownValue(), nullptr);
  ASSERT_TRUE(typing.reapply());
  EXPECT_EQ(*port->ownValue(), Value(Texts{"hello"}));
}

TEST_F(Edits, LetGoOfChildrenWhileTheyArePutAway) {
  PortObject* port = addPort(top(), PortDirection::Input, "in", "color3");
  const PortRef red(port->child("r"));
  Transaction typing = run(SetPortType(PortRef(port), graph_.core().findType("float"), nullptr));
  EXPECT_EQ(red->node(), nullptr);
  EXPECT_EQ(red->settableValue(), std::nullopt);
  EXPECT_FALSE(connect(addSum("one")->port("result"), red.get()));
  ASSERT_TRUE(typing.revert());
  EXPECT_EQ(red->above(), port);
}

TEST_F(Edits, ChangeATypeWithTheChildrenOfBothFaces) {
  PortObject* port = addPort(top(), PortDirection::Input, "in", "color3");
  PortObject* red = port->child("r");
  PortObject* innerRed = port->twin()->child("r");
  Transaction edits = run(SetPortType(PortRef(port), graph_.core().findType("vector2"), nullptr));
  EXPECT_FALSE(port->child("r"));
  EXPECT_TRUE(port->twin()->child("x"));
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(port->child("r"), red);
  EXPECT_EQ(port->twin()->child("r"), innerRed);
}

TEST_F(Edits, DoNotChangeTheTypeOfADefinitionsPort) {
  EXPECT_FALSE(
      fits(SetPortType(PortRef(addSum("one")->port("a")), graph_.core().findType("int"), nullptr)));
}

TEST_F(Edits, LeaveHandlesToFormerChildrenUsable) {
  PortObject* port = addPort(top(), PortDirection::Input, "in", "color3");
  const PortRef red(port->child("r"));
  run(SetPortType(PortRef(port), graph_.core().findType("float"), nullptr));
  EXPECT_EQ(red->name(), "r");
  EXPECT_EQ(red->node(), nullptr);
  EXPECT_EQ(red->above(), nullptr);
}

TEST_F(Edits, SetAValueAndTheDefault) {
  PortObject* port = addSum("one")->port("a");
  Transaction setting = run(SetPortValue{PortRef(port), std::make_unique<const Value>(Floats{3})});
  EXPECT_EQ(*port->ownValue(), Value(Floats{3}));
  Transaction resetting = run(SetPortValue{PortRef(port), nullptr});
  EXPECT_EQ(port->ownValue(), nullptr);
  ASSERT_TRUE(resetting.revert());
  EXPECT_EQ(*port->ownValue(), Value(Floats{3}));
  ASSERT_TRUE(setting.revert());
  EXPECT_EQ(port->ownValue(), nullptr);
}

TEST_F(Edits, AValueOfAnotherTypeThanThePortsIsRefused) {
  PortObject* port = addSum("one")->port("a");
  for (const Value& value : {Value(Integers{3}), Value(Floats{1, 2, 3}), Value(Floats{})}) {
    Transaction edits;
    EXPECT_FALSE(edits.run(SetPortValue{PortRef(port), std::make_unique<const Value>(value)}));
    EXPECT_EQ(port->ownValue(), nullptr);
  }
}

TEST_F(Edits, ShowAPortOnAnInputNode) {
  PortObject* port = addPort(top(), PortDirection::Input, "in", "float");
  NodeObject* one = insert(top(), factory().makeIo(NodeKind::Input, "one"));
  NodeObject* two = insert(top(), factory().makeIo(NodeKind::Input, "two"));
  Transaction first = run(SetIoNode{PortRef(port), NodeRef(one), 0});
  EXPECT_EQ(port->ioNode(), one);
  EXPECT_EQ(one->outputList().at(0), port->twin());
  Transaction second = run(SetIoNode{PortRef(port), NodeRef(two), 0});
  EXPECT_EQ(one->outputList().count(), 0u);
  ASSERT_TRUE(second.revert());
  EXPECT_EQ(one->outputList().at(0), port->twin());
  ASSERT_TRUE(first.revert());
  EXPECT_EQ(port->ioNode(), nullptr);
}

TEST_F(Edits, DoNotShowAPortOnANodeOfAnotherLevel) {
  PortObject* port = addPort(top(), PortDirection::Input, "in", "float");
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* node = insert(*group, factory().makeIo(NodeKind::Input, "node"));
  EXPECT_FALSE(fits(SetIoNode{PortRef(port), NodeRef(node), 0}));
}

TEST_F(Edits, PairAndPartStatePorts) {
  PortObject* in = addPort(top(), PortDirection::Input, "in", "float");
  PortObject* out = addPort(top(), PortDirection::Output, "out", "float");
  Transaction pairing = run(PairState{PortRef(in), PortRef(out)});
  EXPECT_EQ(in->statePartner(), out);
  EXPECT_EQ(out->twin()->statePartner(), in);
  EXPECT_FALSE(fits(PairState{PortRef(in), PortRef(out)}));
  EXPECT_FALSE(fits(RemovePort{{NodeRef(&graph_.top()), PortRef(in), 0}}));
  Transaction parting = run(PartState{PortRef(in), PortRef(out)});
  EXPECT_EQ(out->statePartner(), nullptr);
  ASSERT_TRUE(parting.revert());
  EXPECT_EQ(out->statePartner(), in);
  ASSERT_TRUE(pairing.revert());
  EXPECT_EQ(in->statePartner(), nullptr);
}

TEST_F(Edits, PutAConnectionBackInItsPlaces) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  for (const char* name : {"a", "b"}) ASSERT_TRUE(connect(one->port("result"), two->port(name)));
  Transaction cut = run(Disconnect{{PortRef(one->port("result")), PortRef(two->port("a"))}});
  EXPECT_FALSE(fits(Disconnect{{PortRef(one->port("result")), PortRef(two->port("a"))}}));
  ASSERT_TRUE(cut.revert());
  EXPECT_EQ(one->port("result")->peers().indexOf(two->port("a")), 0u);
}

TEST_F(Edits, DoNotConnectWhatIsTaken) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  ASSERT_TRUE(connect(one->port("result"), two->port("a")));
  EXPECT_FALSE(fits(Connect{{PortRef(addSum("three")->port("result")), PortRef(two->port("a"))}}));
}

TEST_F(Edits, ExchangeMetadataOfEveryOwner) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* port = addPort(*group, PortDirection::Input, "in", "float");
  const AnnotationRef note(new AnnotationObject(AnnotationKind::Backdrop, "note"));
  run(InsertAnnotation{{topRef(), note, 0}});
  const WatchPointRef watch(new WatchPointObject);
  run(SetWatchPoint{PortRef(port), watch});
  Properties set;
  set.set("key", {"value"});
  const SetMetadata::Owner owners[] = {NodeRef(group->node()), CompoundRef(group), note,
                                       PortRef(port), watch};
  for (const auto& owner : owners) {
    const auto& metadata = std::visit(
        [](const auto& object) -> const Properties& { return object->metadata(); }, owner);
    Transaction edits = run(SetMetadata{owner, set});
    EXPECT_EQ(std::visit([](const auto& o) -> const Properties& { return o->metadata(); }, owner),
              set);
    ASSERT_TRUE(edits.revert());
    EXPECT_TRUE(metadata.empty() || owner.index() == 3);
  }
}

TEST_F(Edits, SetAStateAndAnOrigin) {
  CompoundObject* group = addCompound(top(), "group");
  Transaction state = run(SetState{NodeRef(group->node()), NodeState::Bypassed, true});
  Transaction origin = run(SetOrigin{CompoundRef(group), "core::blur", true});
  EXPECT_TRUE(group->node()->is(NodeState::Bypassed));
  EXPECT_TRUE(group->isReferenced());
  EXPECT_FALSE(group->isEditable());
  EXPECT_STREQ(group->getSpecializedTypeName().toChar(), "core::blur");
  ASSERT_TRUE(origin.revert() && state.revert());
  EXPECT_FALSE(group->node()->is(NodeState::Bypassed));
  EXPECT_TRUE(group->isEditable());
}

TEST_F(Edits, PutAWatchPointOnAPort) {
  PortObject* port = addSum("one")->port("result");
  const WatchPointRef watch(new WatchPointObject);
  Transaction placing = run(SetWatchPoint{PortRef(port), watch});
  EXPECT_EQ(port->getWatchPoint().get(), watch.get());
  EXPECT_EQ(watch->port(), port);
  WatchPointSetup setup;
  setup.enabled = false;
  Transaction setting = run(SetUpWatchPoint{watch, setup});
  EXPECT_FALSE(watch->isEnabled());
  ASSERT_TRUE(setting.revert() && placing.revert());
  EXPECT_TRUE(watch->isEnabled());
  EXPECT_EQ(watch->port(), nullptr);
  EXPECT_TRUE(port->getWatchPoint() == nullptr);
}

/// No edit nests deeper than a stored graph is read, so whatever edits make can be read again.
class EditsOfNesting : public GraphFixture {
 protected:
  static constexpr unsigned int kDeepest = CompoundObject::kDeepestStored;
  EditsOfNesting() {
    addNested(top(), "c", kDeepest - 1);
    addNested(top(), "d", 2);
    before_ = writeGraph(graph_);
  }
  NodeRef node(const char* path) { return NodeRef(graph_.findNode(path)); }

  std::string before_;
};

TEST_F(EditsOfNesting, WhatIsDeepestIsReadAgain) {
  ASSERT_TRUE(edits_.run(MoveNode{node("/c"), CompoundRef(graph_.findCompound("/d")), 0, "c"}));
  EXPECT_EQ(top().countHeight(), kDeepest);
  ContainerObject other("standard");
  EXPECT_FALSE(readGraph(writeGraph(graph_), other));
  EXPECT_EQ(other.top().compound()->countHeight(), kDeepest);
}

TEST_F(EditsOfNesting, MovingDeeperIsRefused) {
  const CompoundRef level(graph_.findCompound("/d/d"));
  EXPECT_FALSE(edits_.run(MoveNode{node("/c"), level, 0, "c"}));
  EXPECT_EQ(writeGraph(graph_), before_);
}

TEST_F(EditsOfNesting, ComingBackDeeperIsRefused) {
  const NodeRef away = node("/c");
  Transaction removal;
  ASSERT_TRUE(removal.run(RemoveNode{{CompoundRef(&top()), away, 0}}));
  EXPECT_FALSE(edits_.run(InsertNode{{CompoundRef(graph_.findCompound("/d/d")), away, 0}}));
  ASSERT_TRUE(removal.revert());
  EXPECT_EQ(writeGraph(graph_), before_);
}

}  // namespace
}  // namespace orvlib
