// One connection: the line, what comes of it, and what refuses it.

#include "tests/commands/compound/CompoundNames.h"
#include "tests/commands/graph/ConnectTesting.h"
#include "tests/commands/graph/DeclaredSyntax.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvConnect : public ConnectTest {
 protected:
  /// Metadata on the output "/a.result", and other metadata on the input "/b.a".
  void addMetadata() {
    const auto set = [this](const char* node, const char* port, const char* key,
                            const char* value) {
      ORV_v1::ModifyNodePortCommand command;
      ASSERT_TRUE(command.setPortMetaDataValue(graph.findNodeFromPath(node), port, key, value));
      ASSERT_TRUE(command.redo());
    };
    set("/a", "result", "unit", "m");
    set("/b", "a", "own", "kept");
  }
  std::string metadata(const char* path, const char* key) {
    return port(path)->getPortMetaDataValue(key).toChar();
  }
};

// --- The line

TEST_F(OrvConnect, DeclaresItsFlags) {
  EXPECT_THAT(declared(orvConnectCmd::createSyntax()),
              ElementsAre("-cn -connectNodes", "-d -disconnect", "-cm -copyMetaData", "TTT"));
}

TEST_F(OrvConnect, ConnectsTwoPorts) {
  connect("/a.result", "/b.a");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnect, GivesNoResult) { EXPECT_EQ(host.run("orvConnect g /a.result /b.a"), ""); }

TEST_F(OrvConnect, TakesThePathsInEitherOrder) {
  connect("/b.a", "/a.result");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnect, DisconnectsWithTheFlagAheadOfThePaths) {
  connect("/a.result", "/b.a");
  host.run("orvConnect -disconnect \"g\" \"/a.result\" \"/b.a\"");
  EXPECT_THAT(peers("/b.a"), IsEmpty());
}

TEST_F(OrvConnect, DisconnectsWithTheFlagBehindThePaths) {
  connect("/a.result", "/b.a");
  host.run("orvConnect g /a.result /b.a -d");
  EXPECT_THAT(peers("/b.a"), IsEmpty());
}

TEST_F(OrvConnect, DisconnectsWithTheFlagAmidThePaths) {
  connect("/a.result", "/b.a");
  host.run("orvConnect g /a.result -disconnect /b.a");
  EXPECT_THAT(peers("/b.a"), IsEmpty());
}

TEST_F(OrvConnect, CopiesMetadataWithTheFlagBehindThePaths) {
  addMetadata();
  host.run("orvConnect \"g\" \"/a.result\" \"/b.a\" -copyMetaData");
  EXPECT_EQ(metadata("/b.a", "unit"), "m");
  EXPECT_EQ(metadata("/b.a", "own"), "kept");
}

TEST_F(OrvConnect, CopiesMetadataWithTheFlagAheadOfThePaths) {
  addMetadata();
  host.run("orvConnect -cm g /a.result /b.a");
  EXPECT_EQ(metadata("/b.a", "unit"), "m");
}

TEST_F(OrvConnect, CopiesNoMetadataUnlessAsked) {
  addMetadata();
  connect("/a.result", "/b.a");
  EXPECT_EQ(metadata("/b.a", "unit"), "");
}

TEST_F(OrvConnect, HandsTheWishForMetadataToTheLibrary) {
  LibraryCalls calls;
  host.run("orvConnect g /a.result /b.a -cm");
  host.run("orvConnect g /a.result /c.a");
  EXPECT_THAT(calls.take(),
              ElementsAre("connect /a.result /b.a metadata", "connect /a.result /c.a plain"));
}

TEST_F(OrvConnect, DropsTheWishForMetadataWhenItDisconnects) {
  addMetadata();
  connect("/a.result", "/b.a");
  LibraryCalls calls;
  host.run("orvConnect -d -cm g /a.result /b.a");
  EXPECT_THAT(calls.take(), ElementsAre("disconnect /a.result /b.a"));
  EXPECT_EQ(metadata("/b.a", "unit"), "");
}

TEST_F(OrvConnect, KeepsWhatTheLineSays) {
  host.run("openConnect g /a.result /b.a -cm");
  EXPECT_STREQ(command().sourcePortPath.asUTF8(), "/a.result");
  EXPECT_STREQ(command().destinationPortPath.asUTF8(), "/b.a");
  EXPECT_STREQ(command().bracketCompoundPath.asUTF8(), "/");
  EXPECT_TRUE(command().copyMetaData);
  EXPECT_FALSE(command().disconnect);
  EXPECT_FALSE(command().connectNodesMode);
}

TEST_F(OrvConnect, KeepsBothFlagsOfALineThatDisconnects) {
  connect("/a.result", "/b.a");
  host.run("openConnect -cm -d g /a.result /b.a");
  EXPECT_TRUE(command().disconnect);
  EXPECT_TRUE(command().copyMetaData);
}

TEST_F(OrvConnect, FindsTheGraphByItsUuid) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("orvConnect \"" + uuid + "\" /a.result /b.a");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnect, ClearsAnEarlierResultOfTheLine) {
  class Noisy : public OpenConnectCmd {
   public:
    static KPxCommand* creator() { return new Noisy; }
    KStatus doIt(const KArgList& args) override {
      setResult(7u);
      return OpenConnectCmd::doIt(args);
    }
  };
  addCommand("noisyConnect", Noisy::creator, orvConnectCmd::createSyntax());
  EXPECT_EQ(host.run("noisyConnect g /a.result /b.a"), "");
}

// --- What is connected

TEST_F(OrvConnect, DisplacesWhatTheInputWasConnectedTo) {
  connect("/a.result", "/c.a");
  connect("/b.result", "/c.a");
  EXPECT_THAT(peers("/c.a"), ElementsAre("/b.result"));
  EXPECT_THAT(peers("/a.result"), IsEmpty());
}

TEST_F(OrvConnect, GivesAFanInPortAMemberForEachConnection) {
  connect("/a.result", "/list.elements");
  connect("/b.result", "/list.elements");
  EXPECT_THAT(members("/list.elements"), ElementsAre("item", "item1"));
  EXPECT_THAT(peers("/list.elements.item"), ElementsAre("/a.result"));
  EXPECT_THAT(peers("/list.elements.item1"), ElementsAre("/b.result"));
}

TEST_F(OrvConnect, DisplacesOnAMemberOfAFanInPort) {
  connect("/a.result", "/list.elements");
  connect("/b.result", "/list.elements.item");
  EXPECT_THAT(members("/list.elements"), ElementsAre("item"));
  EXPECT_THAT(peers("/list.elements.item"), ElementsAre("/b.result"));
}

TEST_F(OrvConnect, DisconnectsAMemberByTheFanInPort) {
  connect("/a.result", "/list.elements");
  connect("/b.result", "/list.elements");
  host.run("orvConnect -d g /a.result /list.elements");
  EXPECT_THAT(members("/list.elements"), ElementsAre("item1"));
}

TEST_F(OrvConnect, FindsTheInnerFacesOfACompound) {
  connect("/box.in", "/box/d.a");
  connect("/box/d.result", "/box.out");
  EXPECT_THAT(peersOf(innerPort("/box.in")), ElementsAre("/box/d.a"));
  EXPECT_THAT(peersOf(innerPort("/box.out")), ElementsAre("/box/d.result"));
}

TEST_F(OrvConnect, FindsTheOuterFacesOfACompound) {
  connect("/a.result", "/box.in");
  EXPECT_THAT(peers("/box.in"), ElementsAre("/a.result"));
}

// --- What refuses it

TEST_F(OrvConnect, IsSilentAboutPortsThatAreNotThere) {
  const std::string before = stored();
  EXPECT_THAT(refusalOf("orvConnect g /nobody.result /b.a", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g /a.nothing /b.a", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g /a.result /nobody.a", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g \"\" \"\"", StatusBadArgument), IsEmpty());
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnect, IsSilentAboutPortsThatDoNotFaceOneAnother) {
  EXPECT_THAT(refusalOf("orvConnect g /a.a /b.a", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g /a.result /b.result", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g /a.result /box/d.a", StatusBadArgument), IsEmpty());
}

TEST_F(OrvConnect, IsSilentAboutAGraphThatIsNotThere) {
  EXPECT_THAT(refusalOf("orvConnect nothing /a.result /b.a", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect nothing", StatusBadArgument), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect -cn nothing {/a,/b}", StatusBadArgument), IsEmpty());
}

TEST_F(OrvConnect, IsSilentAboutASceneNodeThatIsNoGraph) {
  host.run("createNode group -name folder");
  EXPECT_THAT(refusalOf("orvConnect folder /a.result /b.a", StatusBadArgument), IsEmpty());
}

TEST_F(OrvConnect, TellsOfAMissingContainerTwice) {
  EXPECT_THAT(refusalOf("orvConnect"), ElementsAre(kTooFew, kParsing));
  EXPECT_THAT(refusalOf("orvConnect -disconnect"), ElementsAre(kTooFew, kParsing));
}

TEST_F(OrvConnect, TellsOfAMissingPath) {
  EXPECT_THAT(refusalOf("orvConnect g"), ElementsAre(kTooFew));
  EXPECT_THAT(refusalOf("orvConnect g /a.result"), ElementsAre(kTooFew));
}

TEST_F(OrvConnect, TellsOfALineThatDoesNotFit) {
  const std::string before = stored();
  EXPECT_THAT(refusalOf("orvConnect -away g /a.result /b.a", StatusBadArgument),
              ElementsAre("! orvConnect: unknown flag -away", kParsing));
  EXPECT_THAT(
      refusalOf("orvConnect g /a.result /b.a /c.a", StatusBadArgument),
      ElementsAre("! orvConnect: too many arguments: \"/c.a\" is one more than the 3 expected",
                  kParsing));
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnect, FailsSilentlyWhenTheLibraryRefuses) {
  connect("/a.result", "/b.a");
  const std::string before = stored();
  EXPECT_THAT(refusalOf("orvConnect g /a.result /b.a"), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g /b.result /a.a"), IsEmpty());
  EXPECT_THAT(refusalOf("orvConnect g /list.result /c.a"), IsEmpty());
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnect, FailsSilentlyToBreakAConnectionThatIsNotThere) {
  EXPECT_THAT(refusalOf("orvConnect -disconnect g /a.result /b.a"), IsEmpty());
}

TEST_F(OrvConnect, PassesAnyFaultOnAsItsStatus) {
  connect("/a.result", "/c.a");
  const std::string before = stored();
  const auto refused = [&](const char* fault, const char* line, KStatusCode status) {
    const orvlib::ArmedFault armed(fault);
    EXPECT_THAT(refusalOf(line, status), IsEmpty()) << fault;
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_EQ(stored(), before) << fault;
  };
  const char* displace = "orvConnect g /b.result /c.a";
  refused("Container findPortsForConnection", displace, StatusBadArgument);
  refused("ConnectCommand connect", displace, StatusFailure);
  refused("edit disconnect", displace, StatusFailure);
  refused("edit connect", displace, StatusFailure);
  refused("edit insertPort", "orvConnect g /a.result /list.elements", StatusFailure);
  refused("ConnectCommand disconnect", "orvConnect -d g /a.result /c.a", StatusFailure);
  refused("edit disconnect", "orvConnect -d g /a.result /c.a", StatusFailure);
}

TEST_F(OrvConnect, LeavesNoStepWhenItFails) {
  host.session().undoQueue().clear();
  refusalOf("orvConnect -d g /a.result /b.a");
  refusalOf("orvConnect g /a.nothing /b.a", StatusBadArgument);
  EXPECT_THAT(host.steps(), IsEmpty());
  connect("/a.result", "/b.a");
  EXPECT_THAT(host.steps(), ElementsAre("orvConnect g /a.result /b.a"));
}

TEST_F(OrvConnect, TakesAnyTextForAPathThatIsNotThere) {
  const std::string before = stored();
  const Texts awkward = {"say \"a\"", "a\\b", " /a.result ", "/a.result\n", "Größe 数据.结果",
                         "",          "^1s",  "/",           "/a.",         std::string(1000, 'x')};
  for (const std::string& text : awkward) {
    const std::string path = quoted(text);
    EXPECT_THAT(refusalOf("orvConnect g " + path + " /b.a", StatusBadArgument), IsEmpty()) << text;
    EXPECT_THAT(refusalOf("orvConnect g /a.result " + path, StatusBadArgument), IsEmpty()) << text;
    EXPECT_THAT(refusalOf("orvConnect " + path + " /a.result /b.a", StatusBadArgument), IsEmpty());
  }
  EXPECT_EQ(stored(), before);
}

}  // namespace
