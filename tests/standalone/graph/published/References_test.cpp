#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/graph/published/PublishedFixture.h"

namespace orvlib {
namespace {

/// core::soft is published, and /soft a copy of it whose input /from.result feeds.
class Reference : public PublishedFixture {
 protected:
  Reference() {
    publish();
    add(top(), "core::math::add", "from");
    add(top(), "core::math::add", "to");
    connect("/from.result", "/soft.size");
    connect("/soft.result", "/to.a");
  }

  /// Makes /soft differ from what is published: one node and one connected input more.
  void change() {
    add(*soft_, "core::math::multiply", "more");
    addPort(*soft_, PortDirection::Input, "extra", "float");
    EXPECT_TRUE(connect("/soft.extra", "/soft/more.a"));
    EXPECT_TRUE(connect("/from.result", "/soft.extra"));
  }

  bool isConnected(std::string_view path) { return port(path) && port(path)->hasPeers(); }
};

TEST_F(Reference, AnInstanceIsOneAndHoldsThePublishedContent) {
  CompoundObject* one = instance("core::soft", "one");
  ASSERT_TRUE(one);
  EXPECT_TRUE(one->isReferenced());
  EXPECT_FALSE(one->isImported());
  EXPECT_FALSE(one->isEditable());
  EXPECT_TRUE(one->nodes().find("twice"));
  EXPECT_EQ(one->node()->typeName(), "core::soft");
  EXPECT_EQ(one->node()->inputList().at(0)->name(), "size");
}

TEST_F(Reference, OfDamagedContentThereIsNoInstance) {
  std::ofstream(file("a.yaml")) << "compound: core::a\nniceName: A\ndescription: A.\ncontent: |\n"
                                   "  nonsense\n";
  fresh_.find("standard")->forceRebuildCompounds();
  EXPECT_FALSE(instance("core::a", "a"));
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_EQ(told_[0].find("there can be no 'core::a': line 1 of its content: "), 0u) << told_[0];
}

TEST_F(Reference, OfACompoundThatHoldsItselfThereIsNoInstance) {
  const NodeObject::DefinitionRef soft = graph_.core().findDefinition("core::soft");
  CompoundObject* outer = addCompound(top(), "outer");
  insert(*outer, factory().make(*soft, "inner"));
  ASSERT_EQ(publish(*outer, "outer"), "");
  CompoundObject* other = addCompound(top(), "other");
  insert(*other, factory().make(*graph_.core().findDefinition("core::outer"), "inner"));
  ASSERT_EQ(publish(*other, "other"), "");
  std::ifstream stream(file("core.other.yaml"));
  std::string text{std::istreambuf_iterator<char>(stream), {}};
  text.replace(text.find("core::other"), 11, "core::soft");
  std::ofstream(file("core.soft.yaml")) << text;
  fresh_.find("standard")->forceRebuildCompounds();
  told_.clear();
  EXPECT_FALSE(instance("core::soft", "one"));
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_EQ(told_[0], "there can be no 'core::soft': it holds itself");
}

TEST_F(Reference, AnInstanceThatStopsToBeOneIsACopy) {
  CompoundObject* one = instance("core::soft", "one");
  EXPECT_TRUE(one->setIsReferenced(false));
  EXPECT_TRUE(one->isImported());
  EXPECT_TRUE(one->isEditable());
  EXPECT_TRUE(one->nodes().find("twice"));
  EXPECT_FALSE(one->canResetToFactory());
}

TEST_F(Reference, ACompoundOfItsOwnCannotBecomeOne) {
  CompoundObject* own = addCompound(top(), "own");
  EXPECT_FALSE(own->setIsReferenced(true));
  EXPECT_TRUE(own->setIsReferenced(false));
}

TEST_F(Reference, TheTopCannotBecomeOne) { EXPECT_FALSE(top().setIsReferenced(true)); }

TEST_F(Reference, ShowsThePublishedContent) {
  change();
  EXPECT_TRUE(soft_->setIsReferenced(true));
  EXPECT_TRUE(soft_->isReferenced());
  EXPECT_FALSE(soft_->nodes().find("more"));
  EXPECT_FALSE(soft_->node()->port("extra"));
  EXPECT_TRUE(isConnected("/soft.size"));
  EXPECT_TRUE(isConnected("/to.a"));
}

TEST_F(Reference, TheFormerContentComesBackAsItWas) {
  change();
  const std::string before = stored();
  NodeObject* more = soft_->nodes().find("more");
  const PortObject* extra = port("/soft.extra");
  EXPECT_TRUE(soft_->setIsReferenced(true));
  EXPECT_NE(stored(), before);
  EXPECT_TRUE(soft_->setIsReferenced(false));
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(soft_->nodes().find("more"), more);
  EXPECT_EQ(port("/soft.extra"), extra);
}

TEST_F(Reference, TheFormerContentComesBackAlsoAfterEditsAround) {
  change();
  EXPECT_TRUE(soft_->setIsReferenced(true));
  NodeObject* other = add(top(), "core::math::add", "other");
  ASSERT_TRUE(connect("/other.result", "/soft.size"));
  EXPECT_TRUE(other->outputList().at(0)->hasPeers());
  EXPECT_TRUE(soft_->setIsReferenced(false));
  EXPECT_TRUE(isConnected("/soft.extra"));
  EXPECT_TRUE(other->outputList().at(0)->hasPeers());
  EXPECT_TRUE(soft_->nodes().find("more"));
}

TEST_F(Reference, AReferenceWithFormerContentMayGoAway) {
  change();
  EXPECT_TRUE(soft_->setIsReferenced(true));
  Transaction edits;
  EXPECT_TRUE(runRemoveNode(edits, *soft_->node()));
}

TEST_F(Reference, EachFaultLeavesTheGraphAsItWas) {
  change();
  const std::string before = stored();
  bool refused = true;
  for (unsigned nth = 1; refused; ++nth) {
    {
      const ArmedFault fault(nth);
      const bool done = soft_->setIsReferenced(true);
      refused = fault.refused();
      EXPECT_EQ(done, !refused) << nth;
    }
    if (refused) {
      EXPECT_EQ(stored(), before) << nth;
    }
    ASSERT_LT(nth, 1000u);
  }
  const std::string shown = stored();
  refused = true;
  for (unsigned nth = 1; refused && soft_->isReferenced(); ++nth) {
    bool done = false;
    {
      const ArmedFault fault(nth);
      done = soft_->setIsReferenced(false);
      refused = fault.refused();
    }
    if (!done) {
      EXPECT_EQ(stored(), shown) << nth;
    }
    ASSERT_LT(nth, 1000u);
  }
  EXPECT_FALSE(soft_->isReferenced());
}

TEST_F(Reference, IsNotChangedBelowAnother) {
  CompoundObject* outer = addCompound(top(), "outer");
  insert(*outer, factory().make(*graph_.core().findDefinition("core::soft"), "inner"));
  publish(*outer, "outer");
  CompoundObject* inner = instance("core::outer", "one")->nodes().find("inner")->compound();
  EXPECT_FALSE(inner->setIsReferenced(false));
  EXPECT_TRUE(inner->isReferenced());
}

using Reset = Reference;

TEST_F(Reset, IsOnlyForACopyThatDiffers) {
  EXPECT_FALSE(soft_->canResetToFactory());
  change();
  EXPECT_TRUE(soft_->canResetToFactory());
  EXPECT_FALSE(instance("core::soft", "one")->canResetToFactory());
  EXPECT_FALSE(addCompound(top(), "own")->canResetToFactory());
}

TEST_F(Reset, AValueOfAPortIsNoDifference) {
  ASSERT_TRUE(edits_.run(
      SetPortValue{PortRef(port("/soft.size")), std::make_unique<const Value>(Floats{0.75f})}));
  EXPECT_FALSE(soft_->canResetToFactory());
}

TEST_F(Reset, BringsThePublishedContentBackAndKeepsWhatIsAround) {
  const std::string before = stored();
  change();
  soft_->resetToFactory();
  EXPECT_EQ(stored(), before);
  EXPECT_FALSE(soft_->canResetToFactory());
}

TEST_F(Reset, KeepsTheValuesOfPorts) {
  ASSERT_TRUE(edits_.run(
      SetPortValue{PortRef(port("/soft.size")), std::make_unique<const Value>(Floats{0.75f})}));
  change();
  soft_->resetToFactory();
  EXPECT_EQ(port("/soft.size")->unconnectedValue(), Value(Floats{0.75f}));
}

TEST_F(Reset, ALockedCompoundIsNotReset) {
  change();
  Properties locked;
  locked.set("locked", {"true"});
  ASSERT_TRUE(edits_.run(SetMetadata{CompoundRef(soft_), locked}));
  EXPECT_FALSE(soft_->canResetToFactory());
}

TEST_F(Reset, EachFaultLeavesTheGraphAsItWas) {
  change();
  const std::string before = stored();
  bool refused = true;
  for (unsigned nth = 1; refused; ++nth) {
    {
      const ArmedFault fault(nth);
      soft_->resetToFactory();
      refused = fault.refused();
    }
    if (refused) {
      EXPECT_EQ(stored(), before) << nth;
    }
    ASSERT_LT(nth, 1000u);
  }
  EXPECT_NE(stored(), before);
}

struct Listener : ChangeListener {
  void graphChanged(ContainerObject&, std::span<const NodeChange>) override { ++rounds; }
  int rounds = 0;
};

TEST_F(Reset, IsToldOnce) {
  change();
  Listener listener;
  graph_.addListener(listener);
  soft_->resetToFactory();
  graph_.removeListener(listener);
  EXPECT_EQ(listener.rounds, 1);
}

/// core::soft has a level inside of it now, and so have new instances.
class ReferenceNesting : public Reference {
 protected:
  static constexpr unsigned int kDeepest = CompoundObject::kDeepest;

  ReferenceNesting() {
    CompoundObject* inner = addCompound(*soft_, "inner");
    publish("soft", "", true);
    EXPECT_TRUE(edits_.run(RemoveNode{{CompoundRef(soft_), NodeRef(inner->node()), 0}}));
  }
  void moveSoftTo(unsigned int depth) {
    CompoundObject* level = addNested(top(), "c", depth - 1);
    Transaction wires;
    for (const char* path : {"/soft.size", "/soft.result"}) {
      ASSERT_TRUE(runDisconnectAll(wires, *port(path)));
    }
    ASSERT_TRUE(edits_.run(MoveNode{NodeRef(soft_->node()), CompoundRef(level), 0, "soft"}));
    ASSERT_EQ(soft_->depth(), depth);
    before_ = stored();
  }

  std::string before_;
};

TEST_F(ReferenceNesting, ACompoundBecomesOneDownToTheDeepestLevel) {
  moveSoftTo(kDeepest - 1);
  EXPECT_TRUE(soft_->canResetToFactory());
  EXPECT_TRUE(soft_->setIsReferenced(true));
  EXPECT_EQ(top().countHeight(), kDeepest);
}

TEST_F(ReferenceNesting, ACompoundBelowWhichThereIsNoRoomStaysWhatItIs) {
  moveSoftTo(kDeepest);
  EXPECT_FALSE(soft_->canResetToFactory());
  EXPECT_FALSE(soft_->setIsReferenced(true));
  EXPECT_EQ(stored(), before_);
}

TEST_F(ReferenceNesting, WhatIsAsDeepAlreadyMayBeReset) {
  moveSoftTo(kDeepest);
  addCompound(*soft_, "inner");
  addCompound(*soft_, "more");
  EXPECT_TRUE(soft_->canResetToFactory());
  EXPECT_TRUE(soft_->setIsReferenced(true));
}

TEST_F(ReferenceNesting, FormerContentDoesNotComeBackBelowTheDeepestLevel) {
  addNested(*soft_, "high", 2);
  ASSERT_TRUE(soft_->setIsReferenced(true));
  moveSoftTo(kDeepest - 1);
  EXPECT_FALSE(soft_->setIsReferenced(false));
  EXPECT_EQ(stored(), before_);
  EXPECT_TRUE(soft_->isReferenced());
}

TEST_F(Reference, AreNestedInEachOtherUpToALimit) {
  constexpr unsigned int kCount = 400;
  const auto typeOf = [](unsigned int i) { return "core::r" + std::to_string(i); };
  for (unsigned int i = 0; i < kCount; ++i) {
    const std::string type = typeOf(i + 1);
    std::ofstream(file("r" + std::to_string(i) + ".yaml"))
        << "compound: " << typeOf(i) << "\nniceName: R\ndescription: R.\ncontent: |\n"
        << "  vesk-compound 1\n  definition " << type << "\n  content\n    node r " << type
        << "\n  end\n";
  }
  fresh_.find("standard")->forceRebuildCompounds();
  told_.clear();
  const CompoundObject* one = instance(typeOf(0), "one");
  ASSERT_TRUE(one);
  EXPECT_EQ(one->countHeight(), 249u);
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_EQ(told_[0], "there can be no 'core::r250': too many references are nested");
  ASSERT_TRUE(instance(typeOf(kCount - 10), "last"));
  EXPECT_EQ(graph_.findCompound("/last")->countHeight(), 9u);
}

}  // namespace
}  // namespace orvlib
