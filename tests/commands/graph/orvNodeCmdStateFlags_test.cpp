// State flags: 'e' enabled, which a new node is, 'f' frozen and 'b' bypassed, which it is not.

#include "standalone/graph/model/NodeObject.h"
#include "tests/commands/graph/NodeEditTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;

class NodeStates : public NodeEditTest {
 protected:
  /// The keys of the flags that are on.
  std::string on(const std::string& path = "/a") {
    std::string keys;
    for (const char key : {'e', 'f', 'b'}) {
      if (isOn(path, key)) keys += key;
    }
    return keys;
  }
};

TEST_F(NodeStates, AreSwitchedOnAndOff) {
  run("/a", "-ssf e false");
  EXPECT_EQ(on(), "");
  run("/a", "-ssf f true -ssf b true");
  EXPECT_EQ(on(), "fb");
  run("/a", "-ssf e true -ssf f false");
  EXPECT_EQ(on(), "eb");
}

TEST_F(NodeStates, OfEachKeyComeAndGo) {
  sweep("/a", "-ssf e false");
  sweep("/a", "-ssf f true");
  sweep("/a", "-ssf b true");
  sweep("/a", "-ssf e false -ssf f true -ssf b true");
  sweep("/box", "-ssf f true");
  sweep("/box/in", "-ssf enabled false");
}

TEST_F(NodeStates, TakeEffectOnTheNodeItself) {
  const auto& made = static_cast<const orvlib::NodeObject&>(*node("/a"));
  EXPECT_TRUE(made.is(orvlib::NodeState::Enabled));
  run("/a", "-ssf e false -ssf b true");
  EXPECT_FALSE(made.is(orvlib::NodeState::Enabled));
  EXPECT_TRUE(made.is(orvlib::NodeState::Bypassed));
  undo();
  EXPECT_TRUE(made.is(orvlib::NodeState::Enabled));
  EXPECT_FALSE(made.is(orvlib::NodeState::Bypassed));
}

TEST_F(NodeStates, AWholeWordIsItsFirstCharacter) {
  run("/a", "-ssf frozen true -ssf \"bypassed for now\" true");
  EXPECT_EQ(on(), "efb");
}

TEST_F(NodeStates, OfOneKeyTwiceEndAsTheLastAndComeBackAsTheyWere) {
  run("/a", "-ssf f true -ssf f false");
  EXPECT_EQ(on(), "e");
  undo();
  EXPECT_EQ(on(), "e");
  run("/a", "-ssf f false -ssf f true");
  EXPECT_EQ(on(), "ef");
  undo();
  EXPECT_EQ(on(), "e");
  redo();
  EXPECT_EQ(on(), "ef");
}

TEST_F(NodeStates, AnUndoWalksTheRecordsForwardToo) {
  runOpen("/a", "-ssf f true -ssf f true");
  // The records say what was there when they were read; this one says something else.
  command().stateFlagChanges[1].oldState = 0;
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_EQ(on(), "ef") << "the last record has the say";
  command().stateFlagChanges[0].oldState = 0;
  command().stateFlagChanges[1].oldState = 1;
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_EQ(on(), "e");
}

TEST_F(NodeStates, AnUndoBringsBackTheStateThatWasReadWhateverCameBetween) {
  runOpen("/a", "-ssf f true");
  run("/a", "-ssf f false");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_EQ(on(), "e");
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_EQ(on(), "ef");
  EXPECT_EQ(redoIt(), StatusSuccess) << "states alone may be set again and again";
  EXPECT_EQ(on(), "ef");
}

TEST_F(NodeStates, OfAKeyThatTheNodeLacksChangeNothingAndLeaveAStep) {
  const std::string before = stored();
  for (const char* key : {"x", "E", "\"\"", "\" e\"", "\"ü\"", "1"}) {
    run("/a", std::string("-ssf ") + key + " false");
    EXPECT_EQ(stored(), before) << key;
    EXPECT_EQ(host.steps().size(), 1u) << key;
    undo();
    EXPECT_EQ(stored(), before) << key;
    redo();
    EXPECT_EQ(stored(), before) << key;
    undo();
  }
}

TEST_F(NodeStates, OfAKeyThatTheNodeLacksDoNotKeepTheOthersBack) {
  run("/a", "-ssf x true -ssf f true");
  EXPECT_EQ(on(), "ef");
  undo();
  EXPECT_EQ(on(), "e");
}

TEST_F(NodeStates, TheTopNodeAndNodesOfALockedCompoundKeepTheirs) {
  build("/box", "-setMetaData locked true");
  EXPECT_THAT(refusalOfAll("/box/in", "-ssf e false -cip p float"), IsEmpty());
  EXPECT_THAT(refusalOfAll("/", "-ssf e false -cip p float"), IsEmpty());
  EXPECT_EQ(on("/box/in"), "e");
  sweep("/box", "-ssf e false");
}

TEST_F(NodeStates, ARedoDoesNotAskAgainWhetherTheCompoundIsEditable) {
  runOpen("/box/in", "-ssf f true");
  EXPECT_EQ(undoIt(), StatusSuccess);
  host.run("orvCompound g \"/box\" -setMetaData locked true");
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_EQ(on("/box/in"), "ef");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_EQ(on("/box/in"), "e");
}

TEST_F(NodeStates, OneThatTheLibraryRefusesIsToldByNoOneAndTheNextIsSet) {
  const auto& made = static_cast<const orvlib::NodeObject&>(*node("/a"));
  const ArmedFault armed("edit setState");
  run("/a", "-ssf f true -ssf b true");
  EXPECT_TRUE(armed.refused());
  EXPECT_FALSE(made.is(orvlib::NodeState::Frozen));
  EXPECT_TRUE(made.is(orvlib::NodeState::Bypassed));
}

TEST_F(NodeStates, ComeAfterPortsThatCannotBeEditedNotAtAll) {
  const ArmedFault armed("ModifyNodePortCommand redo");
  EXPECT_THAT(refusalOfAll("/a", "-ssf f true"), IsEmpty());
  EXPECT_TRUE(armed.refused());
  EXPECT_EQ(on(), "e");
}

}  // namespace
