#include "commands/clipboard/orvCopyCmd.h"

#include <algorithm>
#include <functional>
#include <type_traits>

#include "standalone/host/engine/SyntaxData.h"
#include "standalone/host/scene/Scene.h"
#include "tests/commands/clipboard/ClipboardTesting.h"
#include "tests/support/VirtualTable.h"

namespace {

using orvlib::ArmedFault;
using orvlib::Clipboard;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

static_assert(std::is_base_of_v<orvBaseCmd, orvCopyCmd>);
static_assert(std::is_base_of_v<KPxCommand, orvCopyCmd>);
static_assert(std::is_same_v<decltype(&orvCopyCmd::creator), KPxCommand* (*)()>);
static_assert(std::is_same_v<decltype(&orvCopyCmd::hasSyntax), decltype(&KPxCommand::hasSyntax)>,
              "the host's own");

/// The command, opened as far as its fields go.
struct CopyFields : orvCopyCmd {
  using orvCopyCmd::compoundPath;
  using orvCopyCmd::containerName;
  using orvCopyCmd::copyCommand;
};

TEST(CopyLayout, TheFieldsComeInOrder) {
  const CopyFields command;
  const std::vector<const void*> parts = {&command.containerName, &command.compoundPath,
                                          &command.copyCommand};
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
}

TEST(CopyLayout, TheHostsBaseComesFirst) {
  CopyFields command;
  EXPECT_EQ(static_cast<void*>(static_cast<KPxCommand*>(&command)), &command);
  EXPECT_LT(static_cast<void*>(static_cast<KPxCommand*>(&command)),
            static_cast<void*>(&command.containerName));
}

TEST(CopyLayout, TheOperationsComeInTheHostsOrder) {
  EXPECT_EQ(slotOf(&orvCopyCmd::doIt), 0);
  EXPECT_EQ(slotOf(&orvCopyCmd::undoIt), 1);
  EXPECT_EQ(slotOf(&orvCopyCmd::redoIt), 2);
  EXPECT_EQ(slotOf(&orvCopyCmd::isUndoable), 3);
}

TEST(CopySyntax, DeclaresTwoTextsAndTwoRepeatedFlagsWithoutADash) {
  const KSyntax syntax = orvCopyCmd::createSyntax();
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  ASSERT_EQ(data.flags().size(), 2u);
  EXPECT_EQ(data.flags()[0].shortName, "src");
  EXPECT_EQ(data.flags()[0].longName, "sourceNode");
  EXPECT_EQ(data.flags()[1].shortName, "san");
  EXPECT_EQ(data.flags()[1].longName, "sourceAnnotation");
  for (const vesk::FlagSpec& flag : data.flags()) {
    EXPECT_THAT(flag.arguments, ElementsAre(KSyntax::ArgString));
    EXPECT_TRUE(flag.multiUse);
  }
  EXPECT_THAT(data.arguments(), ElementsAre(KSyntax::ArgString, KSyntax::ArgString));
  EXPECT_FALSE(data.hasQuery());
  EXPECT_FALSE(data.hasEdit());
}

class CopyTest : public ClipboardTest {
 protected:
  /// Copies from the top compound, which must work.
  void copy(const std::string& flags) {
    EXPECT_EQ(host.run("orvCopy g \"/\" " + flags), "") << "it has no result";
  }

  /// What is on the clipboard now, as a paste into a fresh compound shows it: nodes and
  /// annotations.
  Texts copied() {
    if (Clipboard::text().empty()) return {};
    host.run("orvCompound g \"/\" -create shown");
    host.run("orvPaste g /shown");
    Texts all = nodes("/shown");
    for (const std::string& note : annotations("/shown")) all.push_back(note);
    undo();
    undo();
    host.session().undoQueue().clear();
    return all;
  }

  /// Runs `orvCopy ARGUMENTS`, which must fail with this status and leave the clipboard.
  Texts failure(const std::string& arguments, KStatusCode status = StatusFailure) {
    Clipboard::setText("before");
    EXPECT_EQ(host.status("orvCopy " + arguments), status) << arguments;
    EXPECT_EQ(Clipboard::text(), "before") << arguments;
    EXPECT_THAT(host.steps(), IsEmpty());
    return host.takeMessages();
  }
};

TEST_F(CopyTest, TakesTheNodesThatAreNamed) {
  copy("-sourceNode a -sourceNode c");
  EXPECT_THAT(copied(), ElementsAre("a", "c"));
}

TEST_F(CopyTest, TakesSeveralNodesOfOneUse) {
  copy("-sourceNode \"{c,a,b}\"");
  EXPECT_THAT(copied(), testing::UnorderedElementsAre("a", "b", "c"));
}

TEST_F(CopyTest, TakesAnnotationsBesideNodes) {
  copy("-sourceAnnotation frame -sourceNode b -sourceAnnotation note");
  EXPECT_THAT(copied(), ElementsAre("b", "frame", "note"));
}

TEST_F(CopyTest, TakesSeveralAnnotationsOfOneUse) {
  copy("-sourceAnnotation \"{note,frame}\"");
  EXPECT_THAT(copied(), testing::UnorderedElementsAre("frame", "note"));
}

TEST_F(CopyTest, TakesTheShortNames) {
  copy("-src a -san note");
  EXPECT_THAT(copied(), ElementsAre("a", "note"));
}

TEST_F(CopyTest, TakesFlagsOnEitherSideOfThePath) {
  host.run("orvCopy -src a g -san note \"/\" -src b");
  EXPECT_THAT(copied(), ElementsAre("a", "b", "note"));
}

TEST_F(CopyTest, TakesACompoundWithWhatItHolds) {
  host.run("orvCompound g /group -addNode core::math::add");
  copy("-src group");
  host.run("orvPaste g \"/\"");
  EXPECT_THAT(nodes("/group1"), ElementsAre("add"));
}

TEST_F(CopyTest, AsksForOneSourceAfterTheOtherAndForNodesFirst) {
  const ClipboardCalls calls;
  copy("-san note -src \"{a,b}\" -san frame -src c");
  const char* node = "CopyCommand addSourceNode";
  const char* annotation = "CopyCommand addSourceAnnotation";
  EXPECT_THAT(calls.take(), ElementsAre("CopyCommand setParentCompound", node, node, node,
                                        annotation, annotation, "CopyCommand doit"));
}

/// Refuses one source after the other: what is missing then is the one that was asked for.
TEST_F(CopyTest, AddsSourcesInTheOrderOfTheLine) {
  const char* order[] = {"c", "a", "b"};
  for (unsigned nth = 1; nth <= 3; ++nth) {
    {
      const ArmedFault armed("CopyCommand addSourceNode", nth);
      copy("-src \"{c,a}\" -src b");
      EXPECT_TRUE(armed.refused());
    }
    EXPECT_THAT(copied(), testing::SizeIs(2));
    EXPECT_THAT(copied(), Each(testing::Ne(order[nth - 1])));
  }
}

TEST_F(CopyTest, AddsAnnotationsInTheOrderOfTheLine) {
  const ArmedFault armed("CopyCommand addSourceAnnotation", 2);
  copy("-san note -san frame");
  EXPECT_THAT(copied(), ElementsAre("note"));
}

TEST_F(CopyTest, WithoutSourcesItEmptiesTheClipboard) {
  Clipboard::setText("before");
  const ClipboardCalls calls;
  copy("");
  EXPECT_THAT(calls.take(), ElementsAre("CopyCommand setParentCompound", "CopyCommand doit"));
  EXPECT_EQ(Clipboard::text(), "");
}

TEST_F(CopyTest, PassesOverNamesThatAreNotThere) {
  copy("-src nobody -src a -src \"{b,nobody,frame}\" -san nobody -san a");
  EXPECT_THAT(copied(), ElementsAre("a", "b"));
}

TEST_F(CopyTest, TakesANodeThatIsNamedTwiceOnce) {
  copy("-src a -src \"{a,a}\"");
  EXPECT_THAT(copied(), ElementsAre("a"));
}

TEST_F(CopyTest, PassesOverAwkwardNames) {
  for (const std::string name : {"", "{", "}", "{a", "a}", "{a,b", "a b", "\\n", "\\\"", "\\\\",
                                 "\\t", "日本", "/a", "a.result", "{}", "{,}", "{{a}}"}) {
    copy("-src \"" + name + "\"");
    EXPECT_THAT(copied(), IsEmpty()) << name;
  }
  copy("-src " + std::string(1000, 'x') + " -src a");
  EXPECT_THAT(copied(), ElementsAre("a"));
}

TEST_F(CopyTest, AUseThatCannotBeSplitAddsNothing) {
  {
    const ArmedFault armed("Port unserializePortValuesString", 1);
    copy("-src \"{a,b}\" -src c");
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_THAT(copied(), ElementsAre("c"));
}

TEST_F(CopyTest, CopiesFromACompoundThatIsNotEditable) {
  lock("/");
  copy("-src a");
  EXPECT_THAT(Clipboard::text(), HasSubstr("negate"));
}

TEST_F(CopyTest, CopiesFromACompoundInsideAnother) {
  host.run("orvCompound g /group -addNode core::math::add");
  host.run("orvCopy g /group -src add -src a");
  EXPECT_THAT(copied(), ElementsAre("add"));
}

TEST_F(CopyTest, FindsTheContainerByItsIdentifier) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("orvCopy \"" + uuid + "\" \"/\" -src b");
  EXPECT_THAT(copied(), ElementsAre("b"));
}

TEST_F(CopyTest, ChangesNoGraphAndTellsOfNoChange) {
  const std::string before = stored();
  copy("-src \"{a,b,c}\" -san frame");
  EXPECT_EQ(stored(), before);
}

TEST_F(CopyTest, OpensNoBracket) {
  const auto& object = static_cast<const orvlib::ContainerObject&>(graph);
  const std::uint64_t before = object.bracketRound();
  copy("-src \"{a,b,c}\" -san frame");
  EXPECT_EQ(object.bracketRound(), before);
}

TEST_F(CopyTest, IsNoStepToUndo) {
  host.run("orvCompound g \"/\" -addNode core::math::add");
  copy("-src add");
  EXPECT_THAT(host.steps(), testing::SizeIs(1));
  const std::string text = Clipboard::text();
  undo();
  EXPECT_THAT(nodes("/"), ElementsAre("a", "b", "c", "group"));
  EXPECT_EQ(Clipboard::text(), text) << "the copy stays";
}

TEST(CopyCommand, UndoAndRedoDoNothingAndSucceed) {
  orvCopyCmd command;
  EXPECT_FALSE(command.isUndoable());
  EXPECT_EQ(command.undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(command.redoIt().statusCode(), StatusSuccess);
}

TEST_F(CopyTest, ALineThatDoesNotFitGivesTheHostsStatus) {
  EXPECT_THAT(failure("g \"/\" -nonsense", StatusBadArgument),
              ElementsAre("! orvCopy: unknown flag -nonsense", kParsingError));
  EXPECT_THAT(failure("g \"/\" extra -src a", StatusBadArgument),
              ElementsAre(HasSubstr("\"extra\""), kParsingError));
  EXPECT_THAT(failure("nothing \"/nothing\" -src", StatusBadArgument),
              ElementsAre(HasSubstr("-sourceNode"), kParsingError));
}

TEST_F(CopyTest, WithoutAContainerThereAreTwoMessages) {
  EXPECT_THAT(failure(""), ElementsAre(kTooFew, kParsingError));
  EXPECT_THAT(failure("-src a"), ElementsAre(kTooFew, kParsingError));
}

TEST_F(CopyTest, WithoutAPathThereIsOneMessage) {
  EXPECT_THAT(failure("g"), ElementsAre(kTooFew));
  EXPECT_THAT(failure("g -src a"), ElementsAre(kTooFew));
}

TEST_F(CopyTest, OfAContainerThatIsNotThereNothingIsTold) {
  EXPECT_THAT(failure("nothing \"/\" -src a"), IsEmpty());
  EXPECT_THAT(failure("\"\" \"/\""), IsEmpty());
}

TEST_F(CopyTest, AContainerThatIsNotThereGoesAheadOfAMissingPath) {
  EXPECT_THAT(failure("nothing"), IsEmpty());
}

TEST_F(CopyTest, ASceneNodeThatHoldsNoGraphIsNoContainer) {
  host.run("createNode group -name plain");
  host.session().undoQueue().clear();
  EXPECT_THAT(failure("plain \"/\""), IsEmpty());
}

TEST_F(CopyTest, WhatIsNoCompoundIsNamedByItsPath) {
  for (const std::string path : {"/nothing", "/a", "/a.result", "a", "", "//", "/frame"}) {
    EXPECT_THAT(failure("g \"" + path + "\" -src a"),
                ElementsAre("! " + path + " is not a compound name"));
  }
}

TEST_F(CopyTest, TheFlagsOfOtherCommandsAreUnknown) {
  EXPECT_THAT(failure("g \"/\" -duplicateSourceInputConnections", StatusBadArgument),
              ElementsAre(HasSubstr("unknown flag"), kParsingError));
}

TEST_F(CopyTest, ACopyThatTheLibraryRefusesFailsWithoutAMessage) {
  const ArmedFault armed("CopyCommand doit");
  EXPECT_THAT(failure("g \"/\" -src a"), IsEmpty());
  EXPECT_TRUE(armed.refused());
}

/// What binding gives is not asked: the sources are named all the same, and the copy fails.
TEST_F(CopyTest, ACompoundThatTheLibraryDoesNotBindFailsWithoutAMessage) {
  const ArmedFault armed("CopyCommand setParentCompound");
  EXPECT_THAT(failure("g \"/\" -src a"), IsEmpty());
  EXPECT_TRUE(armed.refused());
}

TEST_F(CopyTest, ClearsTheResultThatTheLineHad) {
  addCommand("copyAfter", WithOldResult<orvCopyCmd>::creator, orvCopyCmd::createSyntax());
  EXPECT_EQ(host.run("copyAfter g \"/\" -src a"), "");
}

}  // namespace
