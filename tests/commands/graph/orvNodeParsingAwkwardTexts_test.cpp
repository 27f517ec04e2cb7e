// Texts that are no names: what the command does with them.

#include "tests/commands/AwkwardTexts.h"
#include "tests/commands/compound/CompoundNames.h"
#include "tests/commands/graph/NodeReading.h"

namespace {

using testing::ElementsAre;

class NodeAwkward : public NodeReadingTest, public testing::WithParamInterface<Awkward> {
 protected:
  const std::string& text() const { return GetParam().text; }
  std::string in(const std::string& flag) const { return flag + " " + quoted(text()) + " "; }
  std::string resultOf(const std::string& flags) {
    vesk::ResultValue result;
    EXPECT_TRUE(host.session().runLine(line("/a", flags), result)) << flags;
    return std::holds_alternative<std::string>(result) ? std::get<std::string>(result) : "no text";
  }
};

INSTANTIATE_TEST_SUITE_P(All, NodeAwkward, testing::ValuesIn(kAwkward),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(NodeAwkward, ArriveAsTheyAre) {
  const ReadNode& read = this->read(in("-qpm") + quoted(text()) + in(" -ct") + in("-ct") + "-lcn");
  EXPECT_EQ(read.port, text());
  EXPECT_EQ(read.key, text());
  EXPECT_THAT(read.connectedTo, ElementsAre(text(), text()));
  EXPECT_EQ(this->read(in("-qpv")).port, text());
  EXPECT_EQ(this->read(in("-qpt")).port, text());
  EXPECT_EQ(this->read(in("-lpc")).port, text());
}

TEST_P(NodeAwkward, OfNoContainerAreShownAsTheyAre) {
  EXPECT_EQ(host.status("orvNode " + quoted(text()) + " " + quoted(text())), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! " + text() + " is not a DG ORV container",
                                               "! The node path " + text() + " was not found"));
}

TEST_P(NodeAwkward, OfNoNodeAreShownAsTheyAre) {
  EXPECT_EQ(host.status("orvNode g " + quoted(text())), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! The node path " + text() + " was not found"));
}

TEST_P(NodeAwkward, OfNoPortAreShownAsTheyAre) {
  const std::string message = "! A port named " + text() + " was not found on a";
  for (const std::string& flags : {in("-spt") + "float", in("-spv") + "1", in("-rpv"), in("-qpv"),
                                   in("-qpt"), in("-lpc"), in("-qpm") + "k"}) {
    EXPECT_THAT(refusalOfAll("/a", flags), ElementsAre(message)) << flags;
  }
}

TEST_P(NodeAwkward, OfNoPortAreNeitherDeletedNorGivenMetadata) {
  EXPECT_THAT(refusalOfAll("/a", in("-dp")), ElementsAre(kUnknownNoType));
  const std::string before = stored();
  run("/a", in("-spm") + "k v");
  EXPECT_EQ(stored(), before);
}

TEST_P(NodeAwkward, OfNoPortTypeAreShownAsTheyAre) {
  const Texts message = {"! Unknown port type " + text()};
  EXPECT_EQ(refusalOfAll("/a", "-cip x " + quoted(text())), message);
  EXPECT_EQ(refusalOfAll("/a", "-cop x " + quoted(text())), message);
  EXPECT_THAT(refusalOfAll("/a", "-spt own " + quoted(text())),
              ElementsAre("! A port named own was not found on a"));
}

TEST_P(NodeAwkward, OfNoOptionsAreShownAsTheyAre) {
  EXPECT_THAT(refusalOfAll("/a", in("-cpo") + "-cip x float"),
              ElementsAre("! Invalid port options \"" + text() + "\""));
}

TEST_P(NodeAwkward, OfNoConnectedPortListNothing) { EXPECT_EQ(run("/a", "-lcn" + in(" -ct")), ""); }

TEST_P(NodeAwkward, BecomeTheNamesOfPorts) {
  run("/a", "-cop " + quoted(text()) + " float");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "result", GetParam().asName));
  undo();
  sweep("/a", in("-cip") + "float");
}

TEST_P(NodeAwkward, AreKeysAndValuesOfMetadataAsTheyAre) {
  run("/a", "-spm own " + quoted(text()) + " " + quoted(text()));
  EXPECT_EQ(resultOf("-qpm own " + quoted(text())), text());
  sweep("/a", in("-smd") + quoted(text()));
}

TEST_P(NodeAwkward, AreKeysOfStateFlagsByTheirFirstByte) {
  const ReadNode& read = this->read(in("-ssf") + "true");
  const auto first = std::to_string(static_cast<unsigned char>(text().front()));
  EXPECT_THAT(read.stateChanges, ElementsAre(first + ":0>0"));
}

}  // namespace
