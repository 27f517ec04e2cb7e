// Texts that are no names: what the command does with them.

#include "tests/commands/AwkwardTexts.h"
#include "tests/commands/compound/CompoundNames.h"
#include "tests/commands/compound/CompoundReading.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CompoundAwkward : public CompoundReadingTest, public testing::WithParamInterface<Awkward> {
 protected:
  const std::string& text() const { return GetParam().text; }
  std::string in(const std::string& flag) const { return flag + " " + quoted(text()) + " "; }
  std::string resultOf(const std::string& flags) {
    vesk::ResultValue result;
    EXPECT_TRUE(host.session().runLine(line("/", flags), result)) << flags;
    return std::holds_alternative<std::string>(result) ? std::get<std::string>(result) : "no text";
  }
  CompoundNames names() { return {graph, "/"}; }
};

INSTANTIATE_TEST_SUITE_P(All, CompoundAwkward, testing::ValuesIn(kAwkward),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(CompoundAwkward, ArriveAsTheyAre) {
  const ReadCompound& read =
      this->read(in("-crf") + in("-nt") + in("-ct") + in("-rtf") + in("-sa") + "-ln");
  EXPECT_EQ(read.canReset, text());
  EXPECT_EQ(read.listType, text());
  EXPECT_EQ(read.listConnectedTo, text());
  EXPECT_EQ(read.savedName, text());
  EXPECT_THAT(read.reset, ElementsAre(text()));
}

TEST_P(CompoundAwkward, ArriveAsTheyAreInFlagsOfSeveralTexts) {
  const std::string three = " x " + quoted(text()) + " " + quoted(text());
  const std::string two = " " + quoted(text()) + " " + quoted(text());
  const ReadCompound& read = this->read("-asp" + three + " -pub" + three + " true -qpm" + two +
                                        " -qam" + two + " -rn" + two);
  for (const std::string& kept : {read.statePort2, read.stateType, read.publish2, read.publish3,
                                  read.port, read.portKey, read.annotation, read.annotationKey}) {
    EXPECT_EQ(kept, text());
  }
  EXPECT_THAT(read.renames, ElementsAre(text() + ">" + text()));
}

TEST_P(CompoundAwkward, OfNoContainerAreShownAsTheyAre) {
  EXPECT_EQ(host.status("orvCompound " + quoted(text()) + " \"/\""), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! " + text() + " is not a DG ORV container"));
}

TEST_P(CompoundAwkward, OfNoCompoundAreShownAsTheyAre) {
  EXPECT_EQ(host.status("orvCompound g " + quoted(text())), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! " + text() + " is not a compound name"));
}

TEST_P(CompoundAwkward, OfNoPortAreShownAsTheyAre) {
  const std::string message = "! A port named " + text() + " was not found on top";
  for (const std::string& flags :
       {in("-rp") + "x", in("-dp"), in("-mp") + "0", in("-mpn") + "x", in("-hp") + "true",
        in("-spt") + "float", in("-spv") + "1", in("-rpv")}) {
    EXPECT_THAT(refusal("/", flags), ElementsAre(message)) << flags;
  }
}

TEST_P(CompoundAwkward, OfNoPortTypeAreShownAsTheyAre) {
  const std::string message = "! Unknown port type " + text();
  run("/", "-cip x " + quoted(text()) + in(" -cop y") + in(" -asp a b"));
  EXPECT_THAT(host.takeMessages(), ElementsAre(message, message, message));
  EXPECT_THAT(refusal("/", in("-spt p")), ElementsAre("! A port named p was not found on top"));
}

TEST_P(CompoundAwkward, OfNoNodeAreShownAsTheyAre) {
  const std::string message = "! Node named " + text() + " was not found in /";
  EXPECT_THAT(refusal("/", in("-ec")), ElementsAre(message));
  run("/", in("-rn") + "x" + in(" -rtf"));
  EXPECT_THAT(host.takeMessages(), ElementsAre(message, message));
}

TEST_P(CompoundAwkward, ThatAreNotThereToBeMovedInAreShownAsTheyAre) {
  run("/", in("-mi") + in("-mai") + in("-create"));
  EXPECT_THAT(
      host.takeMessages(),
      ElementsAre("? Node named " + text() + " was not found and will not be moved into " + text(),
                  "? Backdrop/Sticky named " + text() +
                      " was not found and will not be moved into " + text()));
}

TEST_P(CompoundAwkward, OfNoOptionsAreShownAsTheyAre) {
  EXPECT_THAT(refusal("/", in("-cpo") + "-cip x float"),
              ElementsAre("! Invalid port options \"" + text() + "\""));
}

TEST_P(CompoundAwkward, OfNothingAreRemovedAndQueriedWithoutAWord) {
  const std::string before = stored();
  EXPECT_EQ(run("/", in("-rmn") + in("-rma") + "-ra " + quoted(text()) + " x"), "");
  EXPECT_EQ(run("/", in("-qpt")), "");
  EXPECT_EQ(run("/", in("-qam x")), "");
  EXPECT_EQ(run("/", "-qam " + quoted(text()) + " x"), "");
  EXPECT_EQ(run("/", "-ln" + in(" -nt")), "");
  EXPECT_EQ(stored(), before);
}

TEST_P(CompoundAwkward, OfNoNodeTypeAddNothing) {
  EXPECT_EQ(run("/", in("-an")), "[]");
  EXPECT_THAT(names().nodes(), IsEmpty());
}

TEST_P(CompoundAwkward, OfNoPortToConnectToRefuseTheNode) {
  EXPECT_THAT(refusal("/", in("-cot") + "-an core::math::add"), IsEmpty());
  EXPECT_THAT(names().nodes(), IsEmpty());
}

TEST_P(CompoundAwkward, BecomeTheNameOfACompound) {
  run("/", in("-create"));
  EXPECT_THAT(names().nodes(), ElementsAre(GetParam().asName));
  undo();
  sweep("/", in("-create"));
}

TEST_P(CompoundAwkward, BecomeTheNewNameOfANode) {
  run("/", "-create n");
  host.session().undoQueue().clear();
  run("/", "-rn n " + quoted(text()));
  EXPECT_THAT(names().nodes(), ElementsAre(GetParam().asName));
  undo();
  EXPECT_THAT(names().nodes(), ElementsAre("n"));
}

TEST_P(CompoundAwkward, BecomeTheNamesOfAnnotations) {
  run("/", in("-ab") + "-ab other -ra other " + quoted(text()));
  EXPECT_THAT(names().annotations(), ElementsAre(GetParam().asName, testing::_));
  undo();
  EXPECT_THAT(names().annotations(), IsEmpty());
}

TEST_P(CompoundAwkward, BecomeTheNamesOfPorts) {
  run("/", "-rp p " + quoted(text()));
  EXPECT_THAT(names().inputs(), ElementsAre(GetParam().asName, "q"));
  undo();
  run("/", "-cop " + quoted(text()) + " float");
  EXPECT_THAT(names().outputs(), ElementsAre(GetParam().asName));
  undo();
  sweep("/", "-cip " + quoted(text()) + " float");
}

TEST_P(CompoundAwkward, AreKeysAndValuesOfMetadataAsTheyAre) {
  const std::string both = quoted(text()) + " " + quoted(text());
  run("/", "-ab b -sam b " + both + " -spm p " + both);
  EXPECT_EQ(resultOf("-qam b " + quoted(text())), text());
  EXPECT_EQ(resultOf("-qpm p " + quoted(text())), text());
}

}  // namespace
