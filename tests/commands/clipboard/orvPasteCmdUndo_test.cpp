// Undo and redo of a paste whose compound or container may have gone: the lookup says so. Without
// the compound they go on with a bracket of the container.

#include "platform/ORV_1_0/NodeCommand.h"
#include "tests/commands/clipboard/PasteTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;

class PasteGone : public PasteTest {
 protected:
  PasteGone() {
    addCommand("keptPaste", KeptPaste::creator, orvPasteCmd::createSyntax());
    copy("-src a");
    host.run("keptPaste g /group");
  }

  /// Takes the node out of the graph, past the host's undo queue.
  void remove(const char* name) {
    ORV_v1::NodeCommand command;
    EXPECT_TRUE(command.removeNode(compound("/"), name));
    EXPECT_TRUE(command.doit());
  }
};

TEST_F(PasteGone, OfACompoundThatWentTheUserIsToldWhenThePasteIsUndone) {
  remove("group");
  const ClipboardCalls calls;
  KeptPaste::last->undoIt();
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /group is not a compound name"));
  EXPECT_THAT(calls.take(), ElementsAre("PasteCommand undo")) << "the library decides";
  EXPECT_FALSE(graph.activeChangeBracket());
}

TEST_F(PasteGone, AndWhenItIsRedone) {
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess);
  remove("group");
  const ClipboardCalls calls;
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /group is not a compound name"));
  EXPECT_THAT(calls.take(), ElementsAre("PasteCommand redo"));
  EXPECT_FALSE(graph.activeChangeBracket());
}

TEST_F(PasteGone, OfAContainerThatWentTheUserIsToldWhenThePasteIsUndone) {
  const std::string before = stored();
  host.run("delete g");
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! g is not a DG ORV container"));
  undo();
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess) << "once it is back";
  EXPECT_THAT(nodes("/group"), IsEmpty());
}

TEST_F(PasteGone, AndWhenThePasteIntoItIsRedone) {
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess);
  host.run("delete g");
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! g is not a DG ORV container"));
  undo();
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

/// The library opens none of its own for what it refuses, so the rounds are those of the command.
TEST_F(PasteGone, AnUndoAndARedoOpenAndCloseABracketOfTheirOwn) {
  const auto& object = static_cast<const orvlib::ContainerObject&>(graph);
  const std::uint64_t before = object.bracketRound();
  {
    const ArmedFault armed("PasteCommand undo");
    EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(object.bracketRound(), before + 1);
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(object.bracketRound(), before + 2);
  {
    const ArmedFault armed("PasteCommand redo");
    EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(object.bracketRound(), before + 3);
  EXPECT_FALSE(graph.activeChangeBracket());
  EXPECT_FALSE(compound("/group")->activeChangeBracket());
}

/// In an open bracket the library lets an undo that does not fit yet wait for what comes later.
TEST_F(PasteGone, AnUndoRunsWhileItsBracketIsOpen) {
  ORV_v1::NodeCommand command;
  ASSERT_TRUE(command.removeNode(compound("/group"), "a"));
  ASSERT_TRUE(command.doit());
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess);
  EXPECT_FALSE(graph.activeChangeBracket());
  EXPECT_THAT(nodes("/group"), IsEmpty());
}

TEST_F(PasteGone, WhatTheLibraryRefusesToUndoOrRedoFails) {
  {
    const ArmedFault armed("PasteCommand undo");
    EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusFailure) << "it is done already";
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusFailure) << "it is undone already";
  {
    const ArmedFault armed("PasteCommand redo");
    EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

TEST_F(PasteGone, ACompoundThatWasLockedSinceIsUndoneAndRedoneAllTheSame) {
  host.run("orvCompound g /group -setMetaData locked true");
  EXPECT_EQ(KeptPaste::last->undoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), IsEmpty());
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

}  // namespace
