#include "commands/clipboard/orvPasteCmd.h"

#include <algorithm>
#include <functional>
#include <type_traits>

#include "standalone/host/engine/SyntaxData.h"
#include "standalone/host/scene/Scene.h"
#include "tests/commands/clipboard/PasteTesting.h"
#include "tests/support/VirtualTable.h"

namespace {

using orvlib::ArmedFault;
using orvlib::Clipboard;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

static_assert(std::is_base_of_v<orvBaseCmd, orvPasteCmd>);
static_assert(std::is_base_of_v<KPxCommand, orvPasteCmd>);
static_assert(std::is_same_v<decltype(&orvPasteCmd::creator), KPxCommand* (*)()>);
static_assert(std::is_same_v<decltype(&orvPasteCmd::hasSyntax), decltype(&KPxCommand::hasSyntax)>,
              "the host's own");

/// The command, opened as far as its fields go.
struct PasteFields : orvPasteCmd {
  using orvPasteCmd::compoundPath;
  using orvPasteCmd::containerName;
  using orvPasteCmd::pasteCommand;
};

TEST(PasteLayout, TheFieldsComeInOrder) {
  const PasteFields command;
  const std::vector<const void*> parts = {&command.containerName, &command.compoundPath,
                                          &command.pasteCommand};
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
  EXPECT_TRUE(command.isUndoable());
}

TEST(PasteLayout, TheHostsBaseComesFirst) {
  PasteFields command;
  EXPECT_EQ(static_cast<void*>(static_cast<KPxCommand*>(&command)), &command);
  EXPECT_LT(static_cast<void*>(static_cast<KPxCommand*>(&command)),
            static_cast<void*>(&command.containerName));
}

TEST(PasteLayout, TheOperationsComeInTheHostsOrder) {
  EXPECT_EQ(slotOf(&orvPasteCmd::doIt), 0);
  EXPECT_EQ(slotOf(&orvPasteCmd::undoIt), 1);
  EXPECT_EQ(slotOf(&orvPasteCmd::redoIt), 2);
  EXPECT_EQ(slotOf(&orvPasteCmd::isUndoable), 3);
}

TEST(PasteSyntax, DeclaresTwoTextsAndOneFlag) {
  const KSyntax syntax = orvPasteCmd::createSyntax();
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  ASSERT_EQ(data.flags().size(), 1u);
  EXPECT_EQ(data.flags()[0].shortName, "-dsc");
  EXPECT_EQ(data.flags()[0].longName, "-duplicateSourceInputConnections");
  EXPECT_THAT(data.flags()[0].arguments, IsEmpty());
  EXPECT_FALSE(data.flags()[0].multiUse);
  EXPECT_THAT(data.arguments(), ElementsAre(KSyntax::ArgString, KSyntax::ArgString));
  EXPECT_FALSE(data.hasQuery());
  EXPECT_FALSE(data.hasEdit());
}

TEST_F(PasteTest, AddsWhatWasCopied) {
  copy("-src a -src b -san frame");
  paste("/group");
  EXPECT_THAT(nodes("/group"), ElementsAre("a", "b"));
  EXPECT_THAT(annotations("/group"), ElementsAre("frame"));
  EXPECT_EQ(sourceOf("/group/b.value"), "/group/a.result") << "connections within come along";
}

TEST_F(PasteTest, HasNoResult) {
  copy("-src a");
  EXPECT_EQ(paste("/group"), "");
}

TEST_F(PasteTest, ClearsTheResultThatTheLineHad) {
  copy("-src a");
  addCommand("pasteAfter", WithOldResult<orvPasteCmd>::creator, orvPasteCmd::createSyntax());
  EXPECT_EQ(host.run("pasteAfter g /group"), "");
}

TEST_F(PasteTest, GivesFreeNames) {
  copy("-src a -san frame");
  paste("/");
  paste("/");
  EXPECT_THAT(nodes("/"), ElementsAre("a", "b", "c", "group", "a1", "a2"));
  EXPECT_THAT(annotations("/"), ElementsAre("frame", "note", "frame1", "frame2"));
}

TEST_F(PasteTest, LeavesOutConnectionsFromOutside) {
  copy("-src b -src c");
  paste("/");
  EXPECT_EQ(sourceOf("/b1.value"), "");
  EXPECT_EQ(sourceOf("/c1.value"), "/b1.result");
}

TEST_F(PasteTest, KeepsConnectionsFromOutsideOnRequest) {
  copy("-src b -src c");
  paste("/", "-duplicateSourceInputConnections");
  EXPECT_EQ(sourceOf("/b1.value"), "/a.result");
  EXPECT_EQ(sourceOf("/c1.value"), "/b1.result");
}

TEST_F(PasteTest, TakesTheShortNameAheadOfItsArgumentsToo) {
  copy("-src c");
  host.run("orvPaste -dsc g \"/\"");
  EXPECT_EQ(sourceOf("/c1.value"), "/b.result");
}

TEST_F(PasteTest, PastesIntoAnotherGraph) {
  ORV_v1::Container& other = host.graph("other");
  copy("-src a");
  host.run("orvPaste other \"/\"");
  EXPECT_TRUE(other.findNodeFromPath("/a"));
}

/// What has the path of a source there is something else.
TEST_F(PasteTest, InAnotherGraphConnectionsFromOutsideStayOut) {
  ORV_v1::Container& other = host.graph("other");
  host.run("orvCompound other \"/\" -addNode core::math::negate -renameNode negate a");
  copy("-src b");
  host.run("orvPaste other \"/\" -dsc");
  const ORV_v1::AddRefWrapper<ORV_v1::Port> input = other.findPortFromPath(
      "/b.value", ORV_v1::Container::kSearchInput, ORV_v1::Container::kSearchOuter);
  ASSERT_TRUE(input);
  EXPECT_EQ(input->connectedTo().size(), 0u);
  paste("/", "-dsc");
  EXPECT_EQ(sourceOf("/b1.value"), "/a.result") << "and where they are from they do not";
}

TEST_F(PasteTest, ASourceThatHasGoneIsLeftOut) {
  host.run("orvCompound g \"/\" -addNode core::math::negate -renameNode negate b1");
  host.run("orvConnect g /b1.result /c.value");
  copy("-src b -src c");
  host.run("orvCompound g \"/\" -removeNode b1");
  paste("/", "-dsc");
  EXPECT_EQ(sourceOf("/b1.value"), "/a.result") << "the copy of b has the name";
  EXPECT_EQ(sourceOf("/c1.value"), "");
}

TEST_F(PasteTest, FindsTheContainerByItsIdentifier) {
  copy("-src a");
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("orvPaste \"" + uuid + "\" /group");
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

TEST_F(PasteTest, CanBeUndoneAndRedone) {
  copy("-src a -src b -san note");
  sweepLine("orvPaste g \"/\"");
  sweepLine("orvPaste g \"/\" -dsc");
  sweepLine("orvPaste g /group");
}

TEST_F(PasteTest, ARedoTakesWhatThePasteTookNotWhatWasCopiedSince) {
  copy("-src a");
  paste("/group");
  undo();
  copy("-src b");
  redo();
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

TEST_F(PasteTest, ARedoGivesTheVeryNodesThatWereThere) {
  copy("-src a");
  paste("/group");
  const ORV_v1::AddRefWrapper<ORV_v1::Node> node = graph.findNodeFromPath("/group/a");
  undo();
  redo();
  EXPECT_EQ(graph.findNodeFromPath("/group/a").get(), node.get());
}

TEST_F(PasteTest, CallsTheLibraryInOrder) {
  copy("-src a");
  const ClipboardCalls calls;
  paste("/group");
  undo();
  redo();
  EXPECT_THAT(calls.take(),
              ElementsAre("PasteCommand setParentCompound", "PasteCommand doit",
                          "PasteCommand redo", "PasteCommand undo", "PasteCommand redo"));
}

// The bracket.

TEST_F(PasteTest, PastesInABracketOfTheCompound) {
  TrialClipboard system;
  copy("-src a");
  system.held = Clipboard::text();
  const ORV_v1::AddRefWrapper<ORV_v1::Compound> group = compound("/group");
  std::vector<bool> open;
  system.whenAsked = [&] { open.push_back(group->activeChangeBracket()); };
  Clipboard::install(&system);
  Clipboard::setLocal(false);
  paste("/group");
  EXPECT_THAT(open, ElementsAre(true));
  EXPECT_FALSE(group->activeChangeBracket());
}

TEST_F(PasteTest, ARedoIsInABracketOfTheCompoundToo) {
  TrialClipboard system;
  addCommand("keptPaste", KeptPaste::creator, orvPasteCmd::createSyntax());
  copy("-src a");
  const std::string text = Clipboard::text();
  Clipboard::install(&system);
  Clipboard::setLocal(false);
  host.run("keptPaste g /group");
  system.held = text;
  const ORV_v1::AddRefWrapper<ORV_v1::Compound> group = compound("/group");
  std::vector<bool> open;
  system.whenAsked = [&] { open.push_back(group->activeChangeBracket()); };
  EXPECT_EQ(KeptPaste::last->redoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(open, ElementsAre(true));
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
  EXPECT_FALSE(graph.activeChangeBracket());
}

TEST_F(PasteTest, AFailedPasteClosesItsBracket) {
  EXPECT_THAT(failure("g /group"), IsEmpty());
  EXPECT_FALSE(compound("/group")->activeChangeBracket());
}

// Refusals.

TEST_F(PasteTest, ALineThatDoesNotFitGivesTheHostsStatus) {
  EXPECT_THAT(failure("g \"/\" -nonsense", StatusBadArgument),
              ElementsAre("! orvPaste: unknown flag -nonsense", kParsingError));
  EXPECT_THAT(failure("nothing /nothing extra", StatusBadArgument),
              ElementsAre(HasSubstr("\"extra\""), kParsingError));
}

TEST_F(PasteTest, WithoutAContainerThereAreTwoMessages) {
  EXPECT_THAT(failure(""), ElementsAre(kTooFew, kParsingError));
  EXPECT_THAT(failure("-dsc"), ElementsAre(kTooFew, kParsingError));
}

TEST_F(PasteTest, WithoutAPathThereIsOneMessage) {
  EXPECT_THAT(failure("g"), ElementsAre(kTooFew));
  EXPECT_THAT(failure("g -dsc"), ElementsAre(kTooFew));
}

TEST_F(PasteTest, OfAContainerThatIsNotThereNothingIsTold) {
  copy("-src a");
  EXPECT_THAT(failure("nothing \"/\""), IsEmpty());
  EXPECT_THAT(failure("\"\" \"/\""), IsEmpty());
  EXPECT_THAT(failure("nothing"), IsEmpty()) << "it goes ahead of the missing path";
}

TEST_F(PasteTest, ASceneNodeThatHoldsNoGraphIsNoContainer) {
  host.run("createNode group -name plain");
  EXPECT_THAT(failure("plain \"/\""), IsEmpty());
}

TEST_F(PasteTest, WhatIsNoCompoundIsNamedByItsPath) {
  copy("-src a");
  for (const std::string path :
       {"/nothing", "/a", "/a.result", "a", "", "//", "/gröup", "/a b", "/group/"}) {
    EXPECT_THAT(failure("g \"" + path + "\""),
                ElementsAre("! " + path + " is not a compound name"));
  }
  const std::string path = "/" + std::string(1000, 'x');
  EXPECT_THAT(failure("g " + path), ElementsAre("! " + path + " is not a compound name"));
}

TEST_F(PasteTest, ACompoundThatIsNotEditableIsRefusedBeforeTheLibraryIsAsked) {
  lock("/group");
  copy("-src a");
  const ClipboardCalls calls;
  EXPECT_THAT(failure("g /group"), ElementsAre("! The compound is not editable"));
  EXPECT_THAT(calls.take(), IsEmpty());
}

TEST_F(PasteTest, WithNothingOnTheClipboardItFailsWithoutAMessage) {
  EXPECT_THAT(failure("g \"/\""), IsEmpty());
}

TEST_F(PasteTest, WhatIsNoCopyOnTheClipboardFailsWithoutAMessage) {
  copy("-src a");
  const std::string text = Clipboard::text();
  for (const std::string& other :
       {std::string("some text"), std::string("\n"), text + "nonsense",
        text.substr(0, text.size() / 2), std::string(text.size(), '\0')}) {
    Clipboard::setText(other);
    EXPECT_THAT(failure("g \"/\""), IsEmpty()) << other;
  }
}

TEST_F(PasteTest, WhatTheLibraryRefusesFailsWithoutAMessageAndChangesNothing) {
  copy("-src \"{a,b}\" -san frame");
  for (const char* fault : {"PasteCommand setParentCompound", "PasteCommand doit",
                            "PasteCommand redo", "edit moveNode", "edit insertAnnotation"}) {
    const ArmedFault armed(fault);
    ASSERT_TRUE(armed.isArmed()) << fault;
    EXPECT_THAT(failure("g \"/\""), IsEmpty()) << fault;
    EXPECT_TRUE(armed.refused()) << fault;
  }
}

TEST_F(PasteTest, WhicheverCallIsRefusedTheGraphIsWholeAndTheUndoQueueFits) {
  copy("-src \"{b,c}\" -san frame");
  unsigned asked = 0;
  {
    const ArmedFault counting(1'000'000u);
    paste("/", "-dsc");
    asked = counting.asked();
  }
  undo();
  const std::string before = stored();
  host.session().undoQueue().clear();
  ASSERT_GT(asked, 5u);
  for (unsigned nth = 1; nth <= asked; ++nth) {
    const ArmedFault armed(nth);
    const bool worked = host.status("orvPaste g \"/\" -dsc") == StatusSuccess;
    EXPECT_EQ(host.steps().size(), worked ? 1u : 0u) << nth;
    host.takeMessages();
    orvlib::FaultPoints::disarm();
    if (worked) undo();
    EXPECT_EQ(stored(), before) << nth;
    host.session().undoQueue().clear();
  }
}

}  // namespace
