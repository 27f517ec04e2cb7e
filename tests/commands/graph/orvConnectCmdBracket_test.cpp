// Which compound is asked whether it may be edited, which one has the bracket, and undo and redo.

#include "tests/commands/graph/ConnectTesting.h"
#include "tests/commands/graph/OpenBrackets.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvConnectBracket : public ConnectTest {
 protected:
  OrvConnectBracket() {
    edit("/box", "-create inner");
    edit("/box/inner", "-createInputPort p float");
    host.session().undoQueue().clear();
    calls.atCall = [this] { open.push_back(openBrackets()); };
  }

  Texts openBrackets() { return ::openBrackets(graph, {"/", "/box", "/other"}); }

  /// The brackets that were open at each call of the library since it was last asked.
  std::vector<Texts> takeOpen() { return std::exchange(open, {}); }

  void lock(const std::string& path) { edit(path, "-setMetaData locked true"); }

  LibraryCalls calls;
  std::vector<Texts> open;
};

// --- Whether it may be edited

TEST_F(OrvConnectBracket, RefusesTwoNodesInALockedCompound) {
  lock("/box");
  const std::string before = stored();
  EXPECT_THAT(refusalOf("orvConnect g /box/d.result /box/e.a"), ElementsAre(kNotEditable));
  EXPECT_THAT(calls.take(), IsEmpty());
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnectBracket, RefusesToDisconnectInALockedCompound) {
  connect("/box/d.result", "/box/e.a");
  lock("/box");
  EXPECT_THAT(refusalOf("orvConnect -d g /box/d.result /box/e.a"), ElementsAre(kNotEditable));
  EXPECT_THAT(peers("/box/e.a"), ElementsAre("/box/d.result"));
}

TEST_F(OrvConnectBracket, RefusesTheInnerFacesOfALockedCompound) {
  lock("/box");
  EXPECT_THAT(refusalOf("orvConnect g /box/d.result /box.out"), ElementsAre(kNotEditable));
  EXPECT_THAT(refusalOf("orvConnect g /box.in /box/d.a"), ElementsAre(kNotEditable));
}

TEST_F(OrvConnectBracket, ConnectsTheOuterFacesOfALockedCompound) {
  lock("/box");
  connect("/a.result", "/box.in");
  connect("/box.out", "/c.a");
  EXPECT_THAT(peers("/box.in"), ElementsAre("/a.result"));
  EXPECT_THAT(peers("/c.a"), ElementsAre("/box.out"));
}

// Only two plain nodes ask for the level that they are in.
TEST_F(OrvConnectBracket, ConnectsACompoundThatIsInALockedOne) {
  edit("/box/inner", "-createOutputPort q float");
  lock("/box");
  connect("/box/d.result", "/box/inner.p");
  connect("/box/inner.q", "/box/e.a");
  EXPECT_THAT(peers("/box/inner.p"), ElementsAre("/box/d.result"));
  EXPECT_THAT(peers("/box/e.a"), ElementsAre("/box/inner.q"));
}

TEST_F(OrvConnectBracket, HasNoneOpenWhenItRefuses) {
  lock("/box");
  std::vector<Texts> atMessage;
  vesk::MessageChannel& messages = host.session().messages();
  const auto sink = messages.addSink([&](const vesk::Message& message) {
    if (message.kind != vesk::MessageKind::Echo) atMessage.push_back(openBrackets());
  });
  refusalOf("orvConnect g /box/d.result /box/e.a");
  messages.removeSink(sink);
  EXPECT_THAT(atMessage, ElementsAre(IsEmpty()));
}

TEST_F(OrvConnectBracket, UndoesInACompoundThatWasLockedSince) {
  host.run("openConnect g /box/d.result /box/e.a");
  OpenConnectCmd& held = command();
  lock("/box");
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(peers("/box/e.a"), IsEmpty());
}

// --- Which compound has it

TEST_F(OrvConnectBracket, IsThatOfTheLevelOfTwoNodes) {
  connect("/a.result", "/b.a");
  connect("/box/d.result", "/box/e.a");
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("/"), ElementsAre("/box")));
}

TEST_F(OrvConnectBracket, IsThatOfTheCompoundWhoseInnerFaceIsTheDestination) {
  connect("/box/d.result", "/box.out");
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("/box")));
}

TEST_F(OrvConnectBracket, IsThatOfTheLevelAroundACompoundWhoseOuterFaceIsTheDestination) {
  connect("/a.result", "/box.in");
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("/")));
}

TEST_F(OrvConnectBracket, IsOpenToDisconnectToUndoAndToRedo) {
  connect("/box/d.result", "/box/e.a");
  host.run("orvConnect -d g /box/d.result /box/e.a");
  undo();
  redo();
  EXPECT_THAT(calls.take(), ElementsAre("connect /box/d.result /box/e.a plain",
                                        "disconnect /box/d.result /box/e.a", "undo", "redo"));
  EXPECT_THAT(takeOpen(), testing::AllOf(testing::SizeIs(4), testing::Each(ElementsAre("/box"))));
}

TEST_F(OrvConnectBracket, IsClosedAfterwards) {
  connect("/a.result", "/b.a");
  EXPECT_FALSE(graph.activeChangeBracket());
  undo();
  EXPECT_FALSE(graph.activeChangeBracket());
  refusalOf("orvConnect -d g /a.result /b.a");
  EXPECT_FALSE(graph.activeChangeBracket());
}

TEST_F(OrvConnectBracket, DoesNotAskForThePortsAgainToUndoAndToRedo) {
  connect("/box/d.result", "/box/e.a");
  const orvlib::ArmedFault counting(1000);
  undo();
  redo();
  EXPECT_THAT(orvlib::FaultPoints::askedNames(),
              testing::Not(testing::Contains("Container findPortsForConnection")));
}

TEST_F(OrvConnectBracket, IsFoundByItsPathWhenThePortsAreElsewhere) {
  host.run("openConnect g /box/d.result /box/e.a");
  OpenConnectCmd& held = command();
  edit("/box", "-renameNode d moved");
  takeOpen();
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(held.redoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("/box"), ElementsAre("/box")));
}

TEST_F(OrvConnectBracket, IsThatOfTheGraphWhenTheCompoundIsElsewhere) {
  host.run("openConnect g /box/d.result /box/e.a");
  OpenConnectCmd& held = command();
  edit("/", "-renameNode box other");
  takeOpen();
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("graph")));
  EXPECT_THAT(peers("/other/e.a"), IsEmpty());
}

TEST_F(OrvConnectBracket, IsThatOfTheGraphWhenANodeHasTheNameOfTheCompound) {
  host.run("openConnect g /box/d.result /box/e.a");
  OpenConnectCmd& held = command();
  edit("/", "-renameNode box other");
  edit("/", "-renameNode a box");
  takeOpen();
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("graph")));
}

TEST_F(OrvConnectBracket, IsFoundLaterWhenItCouldNotBeFoundAtFirst) {
  {
    const orvlib::ArmedFault armed("Container findPortsForConnection", 2);
    host.run("openConnect g /box/d.result /box/e.a");
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_STREQ(command().bracketCompoundPath.asUTF8(), "");
  EXPECT_EQ(command().undoIt().statusCode(), StatusSuccess);
  EXPECT_STREQ(command().bracketCompoundPath.asUTF8(), "/box");
  EXPECT_THAT(takeOpen(), ElementsAre(ElementsAre("graph"), ElementsAre("/box")));
}

TEST_F(OrvConnectBracket, KeepsThePathOfTheLevel) {
  host.run("openConnect g /box/d.result /box.out");
  EXPECT_STREQ(command().bracketCompoundPath.asUTF8(), "/box");
}

// --- Undo and redo

TEST_F(OrvConnectBracket, EveryEditCanBeSweptBackAndForth) {
  edit("/", "-addNode core::array::build -renameNode build other");
  for (const char* ports :
       {"/a.result /b.a", "/c.b /a.result", "/a.result /list.elements", "/box.in /box/d.a",
        "/box/d.result /box.out", "/a.result /box.in", "/other.result /list.elements"}) {
    sweepLine(std::string("orvConnect g ") + ports + " -cm");
    host.run(std::string("orvConnect g ") + ports);
    sweepLine(std::string("orvConnect -d g ") + ports);
  }
}

TEST_F(OrvConnectBracket, AnUndoGivesTheDisplacedSourceBack) {
  connect("/a.result", "/c.a");
  sweepLine("orvConnect g /b.result /c.a");
  EXPECT_THAT(peers("/c.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectBracket, AnUndoGivesTheSameMemberBack) {
  connect("/a.result", "/list.elements");
  const PortHandle member = port("/list.elements.item");
  host.run("orvConnect -d g /a.result /list.elements");
  undo();
  EXPECT_EQ(port("/list.elements.item").get(), member.get());
}

TEST_F(OrvConnectBracket, TellsTheStatusOfAFailedUndoAndRedo) {
  host.run("openConnect g /a.result /b.a");
  {
    const orvlib::ArmedFault armed("ConnectCommand undo");
    EXPECT_EQ(command().undoIt().statusCode(), StatusFailure);
  }
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
  EXPECT_EQ(command().redoIt().statusCode(), StatusFailure);
  EXPECT_EQ(command().undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(command().undoIt().statusCode(), StatusFailure);
  {
    const orvlib::ArmedFault armed("ConnectCommand redo");
    EXPECT_EQ(command().redoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(command().redoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectBracket, UndoAndRedoFailWithoutTheGraph) {
  host.run("openConnect g /a.result /b.a");
  OpenConnectCmd& held = command();
  host.run("rename g other");
  EXPECT_EQ(held.undoIt().statusCode(), StatusFailure);
  host.run("rename other g");
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  host.run("rename g other");
  EXPECT_EQ(held.redoIt().statusCode(), StatusFailure);
  EXPECT_THAT(peers("/b.a"), IsEmpty());
}

TEST_F(OrvConnectBracket, IsAlwaysUndoable) {
  const OpenConnectCmd fresh;
  EXPECT_TRUE(fresh.isUndoable());
}

}  // namespace
