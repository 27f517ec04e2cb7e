// What an undo brings back, what it does not, and what the next redo makes of it.

#include "tests/commands/graph/NodeEditTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;

class NodeUndo : public NodeEditTest {};

TEST_F(NodeUndo, OfEachEditIsComplete) {
  sweep("/a", "-spv own 2");
  sweep("/a", "-spt own color3");
  sweep("/a", "-cip p float");
  sweep("/a", "-cop p color3 -cpf 3 -cpv \"{1,2,3}\" -cpo \"{unit=px}\"");
  sweep("/a", "-dp own");
  sweep("/a", "-dp out");
  sweep("/a", "-spm own k v");
  sweep("/a", "-smd k v");
  sweep("/a", "-ssf e false");
}

TEST_F(NodeUndo, OfWhatGoesBackToADefaultIsComplete) {
  run("/a", "-spv own 2 -spm own k v -smd k v");
  run("/a", "-amd k w");
  sweep("/a", "-rpv own");
  sweep("/a", "-spm own k \"\"");
  sweep("/a", "-rmd k v");
  sweep("/a", "-cmd k");
  sweep("/a", "-mfs \"{other=x}\"");
}

TEST_F(NodeUndo, OfManyEditsOfOneLineIsComplete) {
  const std::string every =
      "-spv a 2 -rpv b -spt own int -cip p float -cop q int -cpv 3 -dp out -spm a k v "
      "-smd k v -amd k w -ssf e false -ssf f true";
  sweep("/a", every);
  run("/a", "-spv b 3 -smd k old");
  sweep("/a", every);
}

TEST_F(NodeUndo, OfACompoundsNodeIsComplete) {
  run("/box", "-cip size float -cop out float");
  connect("/box.size", "/box/in.a");
  connect("/box/in.result", "/box.out");
  connect("/a.result", "/box.size");
  sweep("/box", "-dp size");
  sweep("/box", "-spt size color3");
  sweep("/box", "-spv size 3 -spm out k v -smd k v -ssf b true");
}

TEST_F(NodeUndo, OfTheTopNodeIsComplete) {
  sweep("/", "-cip p float -cop q int -spm q k v -smd k v");
  run("/", "-cip p float");
  sweep("/", "-spv p 3 -spt p int");
  sweep("/", "-dp p");
}

TEST_F(NodeUndo, OfADeletedPortBringsItsConnectionsAndValueBack) {
  build("/", "-an core::math::negate -rn negate n");
  run("/a", "-cip more float -cpv 4");
  connect("/n.result", "/a.own");
  sweep("/a", "-dp own");
  EXPECT_TRUE(port("/a.own")->isConnected());
  sweep("/a", "-dp more");
  EXPECT_THAT(values("/a.more"), ElementsAre("4"));
}

TEST_F(NodeUndo, OfAValueThatTheLineTookAwayAfterwardsIsComplete) {
  sweep("/a", "-spv own 2 -dp own");
  sweep("/a", "-spv own 2 -rpv own -spt own string -dp own");
  sweep("/a", "-cip p float -spm p k v -ssf f true");
}

TEST_F(NodeUndo, ReachesANodeThatOtherLinesTookAwayAndBroughtBack) {
  const std::string empty = stored();
  host.run("orvCompound g \"/\" -an core::math::add -rn add fresh");
  run("/fresh", "-cip p float -smd k v -ssf f true");
  run("/fresh", "-spv p 4 -spm p k v");
  run("/fresh", "-dp p -ssf f false");
  const std::string full = stored();
  for (int i = 0; i < 4; ++i) undo();
  EXPECT_EQ(stored(), empty);
  for (int i = 0; i < 4; ++i) redo();
  EXPECT_EQ(stored(), full);
  for (int i = 0; i < 4; ++i) undo();
  EXPECT_EQ(stored(), empty);
}

TEST_F(NodeUndo, OfANodeThatIsGoneFailsWithoutAWordAndChangesNothing) {
  runOpen("/a", "-spv own 2 -smd k v -ssf f true");
  host.run("orvCompound g \"/\" -removeNode a");
  const std::string before = stored();
  EXPECT_EQ(undoIt(), StatusFailure);
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_EQ(stored(), before);
}

TEST_F(NodeUndo, OfAGraphThatIsGoneFailsAndNamesIt) {
  runOpen("/a", "-spv own 2");
  host.run("rename g other");
  EXPECT_EQ(undoIt(), StatusFailure);
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! g is not a DG ORV container", "! g is not a DG ORV container"));
  EXPECT_THAT(values("/a.own"), ElementsAre("2"));
}

TEST_F(NodeUndo, ThatTheLibraryRefusesSucceedsAllTheSame) {
  for (const char* fault : {"ModifyNodePortCommand undo", "MetadataCommand undo"}) {
    runOpen("/a", "-spv own 2 -smd k v -ssf f true");
    {
      const ArmedFault armed(fault);
      EXPECT_EQ(undoIt(), StatusSuccess) << fault;
      EXPECT_TRUE(armed.refused()) << fault;
    }
    EXPECT_FALSE(isOn("/a", 'f')) << fault;
    const bool ports = std::string(fault).starts_with("Modify");
    EXPECT_THAT(values("/a.own"), ElementsAre(ports ? "2" : "0")) << fault;
    EXPECT_EQ(run("/a", "-qms"), ports ? "[]" : R"(["k"])") << fault;
    run("/a", "-rpv own -cmd k");
    host.session().undoQueue().clear();
  }
}

TEST_F(NodeUndo, OfMetadataAloneTouchesNothingElse) {
  runOpen("/a", "-smd k v");
  run("/a", "-cip p float -ssf f true");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "p", "result", "out"));
  EXPECT_TRUE(isOn("/a", 'f'));
  EXPECT_EQ(run("/a", "-qms"), "[]");
}

TEST_F(NodeUndo, DoesNotAskWhetherTheCompoundIsEditable) {
  run("/box/in", "-spv a 2 -cip p float");
  host.run("orvCompound g \"/box\" -setMetaData locked true");
  runOpen("/box/in", "-cip q float -smd k v");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_EQ(run("/box/in", "-lp"), R"(["in.a","in.b","in.p","in.result"])");
}

TEST_F(NodeUndo, APortKeepsItsIdentity) {
  run("/a", "-cip p float");
  const PortHandle made = port("/a.p");
  undo();
  EXPECT_EQ(port("/a.p").get(), nullptr);
  redo();
  EXPECT_EQ(port("/a.p").get(), made.get());
}

TEST_F(NodeUndo, FiftyLinesGoAllTheWayBackAndAllTheWayForward) {
  const std::string empty = stored();
  for (int i = 0; i < 50; ++i) {
    const std::string n = std::to_string(i);
    run("/a", "-cip p" + n + " float -cpv " + n + " -smd k" + n + " v -ssf f " +
                  (i % 2 ? "true" : "false"));
  }
  const std::string full = stored();
  for (int i = 0; i < 50; ++i) undo();
  EXPECT_EQ(stored(), empty);
  for (int i = 0; i < 50; ++i) redo();
  EXPECT_EQ(stored(), full);
}

}  // namespace
