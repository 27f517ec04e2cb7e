// Texts reach the graph as UTF-8, also where narrow text is something else.

#include "tests/commands/graph/NodeReading.h"
#include "tests/support/Latin1Locale.h"

namespace {

using testing::ElementsAre;

class NodeNarrowText : public NodeReadingTest {
 protected:
  const hosttest::Latin1Locale locale;
};

TEST_F(NodeNarrowText, KeysAndValuesOfPortsAreUtf8) {
  run("/a", "-spm own Größe süß");
  EXPECT_EQ(metadata("/a.own", "Größe"), "süß");
  EXPECT_EQ(run("/a", "-qpm own Größe"), R"("süß")");
}

TEST_F(NodeNarrowText, ValuesAndOptionsAreUtf8) {
  run("/a", "-cip t string -cpv süß -cpo \"{Größe=weiß}\"");
  EXPECT_THAT(values("/a.t"), ElementsAre("süß"));
  EXPECT_EQ(run("/a", "-qpm t Größe"), R"("weiß")");
  EXPECT_EQ(run("/a", "-spv t grün -qpv t"), R"("grün")");
}

TEST_F(NodeNarrowText, NamesThatAreLookedForAreUtf8) {
  EXPECT_THAT(read("-lcn -ct Größe").connectedTo, ElementsAre("Größe"));
  EXPECT_THAT(refusalOfAll("/größe", ""), ElementsAre("! The node path /größe was not found"));
  EXPECT_THAT(refusalOfAll("/a", "-qpt größe"),
              ElementsAre("! A port named größe was not found on a"));
  EXPECT_THAT(refusalOfAll("/a", "-cip p größe"), ElementsAre("! Unknown port type größe"));
}

TEST_F(NodeNarrowText, ANewPortIsNamedAsInAnyLocale) {
  run("/a", "-cip größe float");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "gr__e", "result"));
}

// 'ü' begins with 195 in UTF-8, and is 252 in Latin-1.
TEST_F(NodeNarrowText, TheKeyOfAStateFlagIsAByteOfUtf8) {
  EXPECT_THAT(read("-ssf ü true").stateChanges, ElementsAre("195:0>0"));
}

}  // namespace
