// The queries that replace the result, and the order of all of them.

#include "tests/commands/graph/NodeTesting.h"

namespace {

using hosttest::Texts;
using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;

/// A graph with the node "m" (core::color::mix3: inputs "a", "b", "weight", output "result") and
/// the node "list" (core::array::build), which has the fan-in port "elements".
class NodeQueries : public NodeTest {
 protected:
  NodeQueries() {
    build("/", "-an core::color::mix3 -rn mix3 m");
    build("/", "-an core::array::build -rn build list");
    run("/m", "-spm weight unit px");
    host.session().undoQueue().clear();
  }

  static Texts notFound(const std::string& port) {
    return {"! A port named " + port + " was not found on m"};
  }
};

TEST_F(NodeQueries, OneValueIsATextAndAnyOtherNumberAList) {
  EXPECT_EQ(run("/m", "-qpv weight"), R"("0.5")");
  EXPECT_EQ(run("/m", "-qpv b"), R"(["1","1","1"])");
  run("/m", "-cip two vector2 -cpv \"{1,2}\"");
  EXPECT_EQ(run("/m", "-qpv two"), R"(["1","2"])");
  EXPECT_EQ(run("/list", "-qpv elements"), "[]");
}

TEST_F(NodeQueries, AnArrayOfOneValueIsAText) {
  run("/m", "-cip l \"array<float>\" -cpv 4");
  EXPECT_EQ(run("/m", "-qpv l"), R"("4")");
}

TEST_F(NodeQueries, AMemberOfAFanInPortHasNoValueToGive) {
  run("/list", "-cip elements.one float");
  EXPECT_EQ(run("/list", "-qpv elements.one"), "false");
}

TEST_F(NodeQueries, ValuesThatTheLibraryDoesNotGiveAreFalse) {
  const ArmedFault armed("Port getPortDefaultValues");
  EXPECT_EQ(run("/m", "-qpv weight"), "false");
  EXPECT_TRUE(armed.refused());
}

TEST_F(NodeQueries, ValuesAreThoseThatWereSetThoughThePortIsConnected) {
  build("/", "-an core::math::negate");
  run("/m", "-spv weight 3");
  connect("/negate.result", "/m.weight");
  EXPECT_EQ(run("/m", "-qpv weight"), R"("3")");
}

TEST_F(NodeQueries, ValuesOfAChildAreItsOwn) { EXPECT_EQ(run("/m", "-qpv b.g"), R"("1")"); }

// Values are looked for among inputs alone, all else among both.
TEST_F(NodeQueries, AnOutputHasATypeChildrenAndMetadataAndNoValues) {
  EXPECT_EQ(run("/m", "-qpt result"), R"("color3")");
  EXPECT_EQ(run("/m", "-lpc result"), R"(["r","g","b"])");
  EXPECT_EQ(run("/m", "-qpm result unit"), R"("")");
  EXPECT_EQ(refusalOfAll("/m", "-qpv result"), notFound("result"));
  run("/m", "-cop own float");
  EXPECT_EQ(refusalOfAll("/m", "-qpv own"), notFound("own"));
}

TEST_F(NodeQueries, ACompoundsPortsAreSeenFromOutside) {
  build("/", "-create box");
  build("/box", "-cip in float -cop out float");
  EXPECT_EQ(run("/box", "-qpv in"), R"("0")");
  EXPECT_THAT(refusal("/box", "-qpv out"), ElementsAre("! A port named out was not found on box"));
  EXPECT_EQ(run("/box", "-qpt out"), R"("float")");
}

TEST_F(NodeQueries, MetadataOfAPortAreOneText) {
  EXPECT_EQ(run("/m", "-qpm weight unit"), R"("px")");
  run("/m", "-cip p float -cpo \"{tags={a,b}}\"");
  EXPECT_EQ(run("/m", "-qpm p tags"), R"("{a,b}")");
}

TEST_F(NodeQueries, AKeyThatThePortLacksIsAnEmptyText) {
  EXPECT_EQ(run("/m", "-qpm weight nosuch"), R"("")");
}

TEST_F(NodeQueries, ChildrenAreNamedByTheirOwnNamesInTheirOrder) {
  EXPECT_EQ(run("/m", "-lpc a"), R"(["r","g","b"])");
  run("/list", "-cip elements.z float");
  run("/list", "-cip elements.a float");
  EXPECT_EQ(run("/list", "-lpc elements"), R"(["z","a"])");
}

TEST_F(NodeQueries, APortWithoutChildrenGivesAnEmptyList) {
  EXPECT_EQ(run("/m", "-lpc weight"), "[]");
  EXPECT_EQ(run("/m", "-lpc a.r"), "[]");
  EXPECT_EQ(run("/list", "-lpc elements"), "[]");
}

TEST_F(NodeQueries, ATypeIsNamed) {
  EXPECT_EQ(run("/m", "-qpt weight"), R"("float")");
  EXPECT_EQ(run("/m", "-qpt a.r"), R"("float")");
  EXPECT_EQ(run("/list", "-qpt elements"), R"("array<float>")");
}

TEST_F(NodeQueries, TheTypeOfANodeIsThatOfItsDefinition) {
  build("/", "-create box -aio true -aio false");
  EXPECT_EQ(run("/m", "-qtn"), R"("core::color::mix3")");
  EXPECT_EQ(run("/box", "-qtn"), R"("compound")");
  EXPECT_EQ(run("/input", "-qtn"), R"("input")");
  EXPECT_EQ(run("/output", "-qtn"), R"("output")");
}

TEST_F(NodeQueries, APortThatIsNotThereFailsTheLine) {
  for (const char* flags : {"-qpv nobody", "-qpt nobody", "-lpc nobody", "-qpm nobody k"}) {
    EXPECT_EQ(refusalOfAll("/m", flags), notFound("nobody")) << flags;
  }
}

TEST_F(NodeQueries, APortIsNamedRelativeToTheNode) {
  for (const char* name : {"/m.weight", "m.weight", "Weight", "weight.", ".weight", "a.x", "r"}) {
    EXPECT_EQ(refusalOfAll("/m", std::string("-qpt ") + name), notFound(name));
  }
}

// Several in one line.

TEST_F(NodeQueries, OfMetadataChildrenAndTypeTheFirstIsAnswered) {
  EXPECT_EQ(run("/m", "-qpt weight -lpc weight -qpm weight unit"), R"("px")");
  EXPECT_EQ(run("/m", "-qpt weight -qpm weight unit"), R"("px")");
  EXPECT_EQ(run("/m", "-qpt a -lpc a"), R"(["r","g","b"])");
}

TEST_F(NodeQueries, OfSeveralTheLastThatIsReadNamesThePort) {
  EXPECT_EQ(run("/m", "-qpm weight unit -qpt a"), R"("px")");
  EXPECT_EQ(run("/m", "-lpc a -qpm weight unit"), R"("")") << "about the port of -lpc";
  EXPECT_EQ(run("/m", "-qpv weight -lpc a"), R"(["r","g","b"])");
}

TEST_F(NodeQueries, ValuesAreAnsweredThenReplaced) {
  EXPECT_EQ(run("/m", "-qpv a -qpt b"), R"("color3")");
  EXPECT_EQ(refusalOfAll("/m", "-qpv a -qpt result"), notFound("result"))
      << "an output has no values";
}

TEST_F(NodeQueries, AnsweringReplacesLists) {
  EXPECT_EQ(run("/m", "-lp -qpv weight"), R"("0.5")");
  EXPECT_EQ(run("/m", "-lp -qpt weight"), R"("float")");
  EXPECT_EQ(run("/m", "-lp -lcn -qtn"), R"("core::color::mix3")");
}

TEST_F(NodeQueries, TheTypeOfTheNodeReplacesAllOfItsPorts) {
  EXPECT_EQ(run("/m", "-qtn -qpv a -qpt a -lpc a -qpm a k"), R"("core::color::mix3")");
}

TEST_F(NodeQueries, MetadataOfTheNodeReplaceAllElse) {
  run("/m", "-smd color red");
  EXPECT_EQ(run("/m", "-lp -qtn -qmd color"), R"(["red"])");
  EXPECT_EQ(run("/m", "-qms -qtn"), R"(["color"])");
  EXPECT_EQ(run("/m", "-qtn -mas"), R"("{color=red}")");
}

TEST_F(NodeQueries, MetadataOfACompoundsNodeAreNotThoseOfTheCompound) {
  build("/", "-create box");
  build("/box", "-setMetaData inner x");
  run("/box", "-setMetaData outer y");
  EXPECT_EQ(run("/box", "-qms"), R"(["outer"])");
  EXPECT_EQ(host.run("orvCompound g \"/box\" -queryMetaDatas"), R"(["inner"])");
}

TEST_F(NodeQueries, AFailingOneEndsTheLineAndKeepsTheListsBefore) {
  vesk::ResultValue result;
  EXPECT_FALSE(host.session().runLine(line("/list", "-lp -qpt nobody -qtn -qms"), result));
  EXPECT_EQ(vesk::toJson(result), R"(["list.elements","list.result"])");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! A port named nobody was not found on list"));
}

TEST_F(NodeQueries, AFailingQueryOfValuesEndsTheLineAheadOfTheOthers) {
  EXPECT_EQ(refusalOfAll("/m", "-qpv result -qpt result -qtn"), notFound("result"));
}

TEST_F(NodeQueries, ThereIsAnAnswerOfWhatTheLineMade) {
  EXPECT_EQ(run("/m", "-cip p color4 -qpt p"), R"("color4")");
  EXPECT_EQ(run("/m", "-spv weight 3 -qpv weight"), R"("3")");
  EXPECT_EQ(run("/m", "-spm weight unit cm -qpm weight unit"), R"("cm")");
  EXPECT_EQ(run("/m", "-spt p int -lp"), R"(["m.a","m.b","m.weight","m.p","m.result"])");
  EXPECT_EQ(run("/m", "-smd k v -qms"), R"(["k"])");
  EXPECT_EQ(run("/m", "-dp p -lp"), R"(["m.a","m.b","m.weight","m.result"])");
}

TEST_F(NodeQueries, APortThatTheLineDeletesIsNotThereAnyMore) {
  run("/m", "-cip p float");
  EXPECT_EQ(refusal("/m", "-dp p -qpt p"), notFound("p"));
  EXPECT_THAT(ports("/m"), ElementsAre("a", "b", "weight", "result")) << "and stays deleted";
}

TEST_F(NodeQueries, LeaveNoStepAndNoResultOfTheLineBefore) {
  EXPECT_EQ(run("/m", "-lp -qtn"), R"("core::color::mix3")");
  EXPECT_EQ(run("/m", ""), "");
  EXPECT_THAT(host.steps(), IsEmpty());
}

}  // namespace
