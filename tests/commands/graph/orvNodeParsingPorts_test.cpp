// The ports that a line makes, and what it says of all of them.

#include "tests/commands/graph/NodeTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A graph with the node "a", the compound "box" and the node "list", which has the fan-in port
/// "elements".
class NodePorts : public NodeTest {
 protected:
  NodePorts() {
    build("/", "-an core::math::add -rn add a");
    build("/", "-create box");
    build("/", "-an core::array::build -rn build list");
  }

  unsigned flags(const std::string& path) { return port(path)->getFlags(); }
};

TEST_F(NodePorts, BothDirectionsOfOneLineAreMade) {
  run("/a", "-cop out int -cip in float");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "in", "result", "out"));
  EXPECT_EQ(typeOf("/a.in"), "float");
  EXPECT_EQ(typeOf("/a.out"), "int");
}

TEST_F(NodePorts, WithoutMoreSaidHaveTheDefaultsOfTheirTypeAndNoFlags) {
  run("/a", "-cip in color4 -cop out bool");
  EXPECT_THAT(values("/a.in"), ElementsAre("0", "0", "0", "1"));
  EXPECT_THAT(values("/a.out"), ElementsAre("false"));
  EXPECT_EQ(flags("/a.in"), 0u);
}

TEST_F(NodePorts, FlagsValuesAndOptionsAreThoseOfBoth) {
  run("/a", "-cip in float -cop out float -cpf 5 -cpv 0.5 -cpo \"{unit=px,tags={a,b}}\"");
  for (const char* path : {"/a.in", "/a.out"}) {
    EXPECT_EQ(flags(path), 5u) << path;
    EXPECT_THAT(values(path), ElementsAre("0.5")) << path;
    EXPECT_EQ(metadata(path, "unit"), "px") << path;
    EXPECT_EQ(metadata(path, "tags"), "{a,b}") << path;
  }
}

TEST_F(NodePorts, TheLargestFlagWordArrives) {
  run("/a", "-cip in float -cpf 4294967293");
  EXPECT_EQ(flags("/a.in"), 4294967293u);
}

TEST_F(NodePorts, AFanInPortGrowsMembers) {
  run("/a", "-cip many \"array<float>\" -cpf 2");
  run("/a", "-cip many.first float");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "many", "result"));
  EXPECT_EQ(run("/a", "-lpc many"), R"(["first"])");
}

// Each is read against the type of its own flag.
TEST_F(NodePorts, ValuesThatFitOneOfTheTypesGoToThatPort) {
  run("/a", "-cip in color3 -cop out float -cpv \"{1,2,3}\"");
  EXPECT_THAT(values("/a.in"), ElementsAre("1", "2", "3"));
  EXPECT_THAT(values("/a.out"), ElementsAre("0"));
  run("/a", "-cip more string -cop text int -cpv words");
  EXPECT_THAT(values("/a.more"), ElementsAre("words"));
  EXPECT_THAT(values("/a.text"), ElementsAre("0"));
}

TEST_F(NodePorts, ValuesThatCannotBeReadAreLeftOutWithoutAWord) {
  for (const char* given : {"nonsense", "\"{1\"", "{1,2}"}) {
    run("/a", std::string("-cip p float -cpv ") + given);
    EXPECT_THAT(values("/a.p"), ElementsAre("0")) << given;
    undo();
  }
}

TEST_F(NodePorts, NoValuesAtAllAreTheEmptyTextOrTheEmptyArray) {
  run("/a", "-cip t string -cop l \"array<int>\" -cpv \"\"");
  EXPECT_THAT(values("/a.t"), ElementsAre(""));
  EXPECT_THAT(values("/a.l"), IsEmpty());
}

TEST_F(NodePorts, AnEmptyTextOfOptionsIsNone) {
  run("/a", "-cip p float -cpo \"\"");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "p", "result"));
}

TEST_F(NodePorts, OfATakenNameGetANumber) {
  run("/a", "-cip a float -cop result int");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "a1", "result", "result1"));
}

TEST_F(NodePorts, OfACompoundsNodeAreTheCompoundsPorts) {
  run("/box", "-cip in float -cop out int");
  EXPECT_EQ(host.run("orvCompound g \"/box\" -listPorts"), R"(["in","out"])");
  run("/box", "-dp in -spt out float");
  EXPECT_EQ(host.run("orvCompound g \"/box\" -listPorts"), R"(["out"])");
  EXPECT_EQ(typeOf("/box.out"), "float");
}

TEST_F(NodePorts, MembersOfAFanInPortComeAndGo) {
  run("/list", "-cip elements.one float");
  EXPECT_EQ(run("/list", "-lpc elements"), R"(["one"])");
  run("/list", "-dp elements.one");
  EXPECT_EQ(run("/list", "-lpc elements"), "[]");
}

TEST_F(NodePorts, AMemberTakesNoValues) {
  EXPECT_THAT(refusalOfAll("/list", "-cip elements.one float -cpv 1"),
              ElementsAre("! Unknown port type float"));
}

TEST_F(NodePorts, GoWithTheirConnections) {
  build("/", "-an core::math::negate");
  run("/a", "-cip p float");
  connect("/negate.result", "/a.p");
  run("/a", "-dp p");
  EXPECT_FALSE(port("/negate.result")->isConnected());
  undo();
  EXPECT_TRUE(port("/negate.result")->isConnected());
}

TEST_F(NodePorts, AChildPortTakesAValueOfItsOwn) {
  run("/a", "-cip c color3");
  run("/a", "-spv c.g 0.5");
  EXPECT_THAT(values("/a.c"), ElementsAre("0", "0.5", "0"));
  run("/a", "-spv c \"{1,2,3}\"");
  run("/a", "-rpv c.r");
  EXPECT_THAT(values("/a.c"), ElementsAre("0", "2", "3"));
}

TEST_F(NodePorts, ValuesAreSetAsOneListForAllComponents) {
  run("/a", "-cip c color3 -cop l \"array<float>\"");
  run("/a", "-spv c \"{0.1,0.2,0.3}\"");
  EXPECT_THAT(values("/a.c"), ElementsAre("0.1", "0.2", "0.3"));
}

TEST_F(NodePorts, AnEmptyValueIsATextsValue) {
  run("/a", "-cip t string -cpv words");
  run("/a", "-spv t \"\"");
  EXPECT_THAT(values("/a.t"), ElementsAre(""));
}

TEST_F(NodePorts, AValueThatIsResetIsThatOfTheDefinitionAgain) {
  build("/", "-an core::color::mix3 -rn mix3 mix");
  run("/mix", "-spv weight 3");
  run("/mix", "-rpv weight");
  EXPECT_THAT(values("/mix.weight"), ElementsAre("0.5"));
}

// The type of an output is not looked up, and a list of texts is what its value is then read as.
TEST_F(NodePorts, AnOutputThatIsNotComputedTakesAValueToo) {
  run("/a", "-cop c color3 -cip unused float");
  run("/a", "-spv c \"{1,2,3}\"");
  EXPECT_THAT(values("/a.c"), ElementsAre("1", "2", "3"));
  EXPECT_THAT(refusalOfAll("/a", "-spv c \"{1,2}\""),
              ElementsAre("! A port named c was not found on a"));
}

// With a type at hand, no text at all is an array of no elements or an empty text; without one it
// is a list of none, which is no text.
TEST_F(NodePorts, AnEmptyTextIsTheValueOfAnInputAndNotOfAnOutput) {
  run("/a", "-cip in string -cop out string -cpv words");
  run("/a", "-spv in \"\"");
  EXPECT_THAT(values("/a.in"), ElementsAre(""));
  EXPECT_THAT(refusalOfAll("/a", "-spv out \"\""),
              ElementsAre("! A port named out was not found on a"));
}

}  // namespace
