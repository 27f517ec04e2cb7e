// The flag bits of one port: the line, what comes of it, and what refuses it.

#include "tests/commands/compound/CompoundNames.h"
#include "tests/commands/graph/DeclaredSyntax.h"
#include "tests/commands/graph/PortTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvPort : public PortTest {};

// --- The line

TEST_F(OrvPort, SetsBits) {
  host.run("orvPort \"g\" \"/a.a\" 0 1 -set 5");
  EXPECT_EQ(flags("/a.a"), 5u);
}

TEST_F(OrvPort, SetsBitsBesideThoseThatAreSet) {
  host.run("orvPort g /a.a 0 1 -setFlag 5");
  host.run("orvPort g /a.a 0 1 -set 8");
  EXPECT_EQ(flags("/a.a"), 13u);
}

TEST_F(OrvPort, ClearsBits) {
  host.run("orvPort g /a.a 0 1 -set 13");
  host.run("orvPort g /a.a 0 1 -clear 5");
  EXPECT_EQ(flags("/a.a"), 8u);
}

TEST_F(OrvPort, ClearsByTheShortName) {
  host.run("orvPort g /a.a 0 1 -set 13");
  host.run("orvPort g /a.a 0 1 -cl 4");
  EXPECT_EQ(flags("/a.a"), 9u);
}

TEST_F(OrvPort, SetsFirstAndThenClears) {
  host.run("orvPort g /a.a 0 1 -cl 4 -set 12");
  EXPECT_EQ(flags("/a.a"), 8u);
}

TEST_F(OrvPort, TakesFlagsAheadOfTheArguments) {
  host.run("orvPort -set 4 g /a.a 0 1");
  EXPECT_EQ(flags("/a.a"), 4u);
}

TEST_F(OrvPort, TakesEveryBit) {
  host.run("orvPort g /a.a 0 1 -set 4294967295");
  EXPECT_EQ(host.run("orvPort g /a.a 0 1 -qf"), "4294967295");
  host.run("orvPort g /a.a 0 1 -clear 4294967295");
  EXPECT_EQ(flags("/a.a"), 0u);
}

TEST_F(OrvPort, QueriesTheFlags) {
  EXPECT_EQ(host.run("orvPort g /list.elements 0 1 -queryFlags"), "2");
  EXPECT_EQ(host.run("orvPort g /a.a 0 1 -qf"), "0");
}

TEST_F(OrvPort, QueriesTheFlagsFromBeforeTheLine) {
  host.run("orvPort g /a.a 0 1 -set 4");
  EXPECT_EQ(host.run("orvPort g /a.a 0 1 -set 1 -qf"), "4");
  EXPECT_EQ(host.run("orvPort g /a.a 0 1 -qf -clear 5"), "5");
  EXPECT_EQ(flags("/a.a"), 0u);
}

TEST_F(OrvPort, GivesNoResultUnlessAsked) {
  EXPECT_EQ(host.run("orvPort g /a.a 0 1 -set 4"), "");
  EXPECT_EQ(host.run("orvPort g /a.a 0 1"), "");
}

TEST_F(OrvPort, DoesNotClearAnEarlierResult) {
  class Noisy : public orvPortCmd {
   public:
    static KPxCommand* creator() { return new Noisy; }
    KStatus doIt(const KArgList& args) override {
      setResult(7u);
      return orvPortCmd::doIt(args);
    }
  };
  addCommand("noisyPort", Noisy::creator, orvPortCmd::createSyntax());
  EXPECT_EQ(host.run("noisyPort g /a.a 0 1 -set 4"), "7");
}

// The names have no "-" of their own; a line writes one.
TEST_F(OrvPort, DeclaresItsFlagsWithoutADash) {
  EXPECT_THAT(declared(orvPortCmd::createSyntax()),
              ElementsAre("set setFlag U", "cl clear U", "qf queryFlags", "TTUU"));
}

TEST_F(OrvPort, TakesNoFlagWithoutADash) {
  EXPECT_THAT(refusalOf("orvPort g /a.a 0 1 set 1", StatusBadArgument),
              ElementsAre("! orvPort: too many arguments: \"set\" is one more than the 4 expected",
                          kParsing));
}

// --- Which port

TEST_F(OrvPort, SearchesByDirection) {
  host.run("orvPort g /a.result 1 1 -set 4");
  EXPECT_EQ(flags("/a.result"), 4u);
  EXPECT_THAT(refusalOf("orvPort g /a.result 0 1 -set 8"), IsEmpty());
  EXPECT_THAT(refusalOf("orvPort g /a.a 1 1 -set 8"), IsEmpty());
}

TEST_F(OrvPort, SearchesEitherDirection) {
  host.run("orvPort g /a.result 2 1 -set 4");
  host.run("orvPort g /a.a 2 0 -set 4");
  EXPECT_EQ(flags("/a.result"), 4u);
  EXPECT_EQ(flags("/a.a"), 4u);
}

TEST_F(OrvPort, SearchesTheInnerFaceWithTheReversedDirection) {
  host.run("orvPort g /box.in 1 0 -set 4");
  EXPECT_EQ(flags("/box.in"), 4u);
  EXPECT_THAT(refusalOf("orvPort g /box.in 0 0 -set 8"), IsEmpty());
}

TEST_F(OrvPort, SetsTheBitsOfBothFaces) {
  host.run("orvPort g /box.in 0 1 -set 4");
  EXPECT_EQ(host.run("orvPort g /box.in 1 0 -qf"), "4");
}

TEST_F(OrvPort, FindsNothingForOtherNumbers) {
  for (const char* numbers : {"3 1", "0 2", "4294967295 1", "0 4294967295", "2147483648 1"}) {
    EXPECT_THAT(refusalOf(std::string("orvPort g /a.a ") + numbers + " -qf"), IsEmpty()) << numbers;
  }
}

TEST_F(OrvPort, SetsBitsOfAMemberOfAFanInPort) {
  host.run("orvConnect g /a.result /list.elements");
  host.run("orvPort g /list.elements.item 0 1 -set 4");
  EXPECT_EQ(flags("/list.elements.item"), 4u);
  EXPECT_EQ(flags("/list.elements"), 2u);
}

// --- What refuses it

TEST_F(OrvPort, TellsOfAMissingContainerTwice) {
  EXPECT_THAT(refusalOf("orvPort"), ElementsAre(kTooFew, kParsing));
  EXPECT_THAT(refusalOf("orvPort -set 1"), ElementsAre(kTooFew, kParsing));
}

TEST_F(OrvPort, TellsOfEachMissingArgument) {
  EXPECT_THAT(refusalOf("orvPort g"), ElementsAre(kTooFew));
  EXPECT_THAT(refusalOf("orvPort g /a.a"), ElementsAre(kTooFew));
  EXPECT_THAT(refusalOf("orvPort g /a.a 0"), ElementsAre(kTooFew));
  EXPECT_THAT(refusalOf("orvPort g /a.a 0 -set 4"), ElementsAre(kTooFew));
  EXPECT_EQ(flags("/a.a"), 0u);
}

TEST_F(OrvPort, TellsOfALineThatDoesNotFit) {
  EXPECT_THAT(refusalOf("orvPort g /a.a 0 1 -set 4294967296", StatusBadArgument),
              ElementsAre("! orvPort: flag -setFlag expects a whole number from 0 to 4294967295, "
                          "not \"4294967296\"",
                          kParsing));
  EXPECT_THAT(refusalOf("orvPort g /a.a -1 1", StatusBadArgument),
              ElementsAre("! orvPort: argument 3 expects a whole number from 0 to 4294967295, "
                          "not \"-1\"",
                          kParsing));
  EXPECT_THAT(
      refusalOf("orvPort g /a.a 0 x -set 1", StatusBadArgument),
      ElementsAre("! orvPort: argument 4 expects a whole number from 0, not \"x\"", kParsing));
  EXPECT_THAT(refusalOf("orvPort g /a.a 0 1 -away", StatusBadArgument),
              ElementsAre("! orvPort: unknown flag -away", kParsing));
  EXPECT_EQ(flags("/a.a"), 0u);
}

TEST_F(OrvPort, IsSilentAboutAGraphThatIsNotThere) {
  EXPECT_THAT(refusalOf("orvPort nothing /a.a 0 1 -set 4"), IsEmpty());
}

TEST_F(OrvPort, IsSilentAboutAPortThatIsNotThere) {
  const std::string before = stored();
  EXPECT_THAT(refusalOf("orvPort g /a.nothing 0 1 -set 4 -cl 1"), IsEmpty());
  EXPECT_THAT(refusalOf("orvPort g /nobody.a 0 1 -set 4"), IsEmpty());
  EXPECT_THAT(refusalOf("orvPort g /a.a.x 0 1 -set 4"), IsEmpty());
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvPort, QueriesNothingOfAPortThatIsNotThere) {
  vesk::ResultValue result;
  EXPECT_EQ(host.session().runLine("orvPort g /a.nothing 0 1 -qf", result).statusCode(),
            StatusFailure);
  EXPECT_EQ(vesk::toJson(result), "");
  EXPECT_EQ(host.session().runLine("orvPort nothing /a.a 0 1 -qf", result).statusCode(),
            StatusFailure);
  EXPECT_EQ(vesk::toJson(result), "");
}

TEST_F(OrvPort, TakesAnyTextForAPathThatIsNotThere) {
  const std::string before = stored();
  const Texts awkward = {"say \"a\"", "a\\b", " /a.a ", "/a.a\n", "Größe 数据.值",
                         "",          "^1s",  "/",      "/a.",    std::string(1000, 'x')};
  for (const std::string& text : awkward) {
    const std::string path = quoted(text);
    EXPECT_THAT(refusalOf("orvPort g " + path + " 0 1 -set 4 -qf"), IsEmpty()) << text;
    EXPECT_THAT(refusalOf("orvPort " + path + " /a.a 0 1 -set 4 -qf"), IsEmpty()) << text;
  }
  EXPECT_EQ(stored(), before);
}

}  // namespace
