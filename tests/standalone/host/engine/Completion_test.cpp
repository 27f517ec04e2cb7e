#include "standalone/host/engine/Completion.h"

#include <gmock/gmock.h>

#include "standalone/host/engine/HostSession.h"

namespace vesk {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Completions : public ::testing::Test {
 protected:
  /// What can stand for the last word of a line.
  std::vector<std::string> of(const std::string& line) {
    return completions(session_.registry(), line, lastWord(line));
  }

  HostSession session_;
};

TEST_F(Completions, OfAnEmptyLineAreAllCommands) { EXPECT_EQ(of(""), session_.registry().names()); }

TEST_F(Completions, OfTheFirstWordAreCommands) {
  EXPECT_THAT(of("un"), ElementsAre("undo", "undoInfo", "unloadPlugin"));
  EXPECT_THAT(of("createNode"), ElementsAre("createNode"));
  EXPECT_THAT(of("nonsense"), IsEmpty());
}

TEST_F(Completions, OfALaterWordAreFlagsOfTheCommand) {
  EXPECT_THAT(of("undoInfo -"), Contains("-printQueue"));
  EXPECT_THAT(of("undoInfo -s"), ElementsAre("-state", "-stateWithoutFlush"));
  EXPECT_THAT(of("createNode group -n"), ElementsAre("-name"));
}

TEST_F(Completions, AreAlsoTheModesThatACommandHas) {
  KSyntax syntax;
  syntax.enableQuery(true);
  syntax.enableEdit(true);
  CommandEntry entry;
  entry.name = "modes";
  entry.creator = []() -> KPxCommand* { return nullptr; };
  entry.syntax = syntax;
  ASSERT_EQ(session_.registry().add(entry), CommandRegistry::Outcome::Registered);
  EXPECT_THAT(of("modes -"), ElementsAre("-query", "-edit"));
  EXPECT_THAT(of("modes -e"), ElementsAre("-edit"));
  EXPECT_THAT(of("undoInfo -q"), ElementsAre("-query"));
  EXPECT_THAT(of("undoInfo -e"), IsEmpty());
  EXPECT_THAT(of("createNode group -q"), IsEmpty());
}

TEST_F(Completions, OfAWordThatIsNoFlagAreNone) {
  EXPECT_THAT(of("createNode gr"), IsEmpty());
  EXPECT_THAT(of("createNode "), IsEmpty());
}

TEST_F(Completions, OfAFlagOfAnUnknownCommandAreNone) { EXPECT_THAT(of("nonsense -n"), IsEmpty()); }

TEST_F(Completions, BeginAnewBehindASemicolon) {
  EXPECT_THAT(of("undo; cre"), ElementsAre("createNode"));
  EXPECT_THAT(of("undo;cre"), ElementsAre("createNode"));
  EXPECT_THAT(of("undo; createNode group -n"), ElementsAre("-name"));
}

TEST_F(Completions, PassOverBlanksAheadOfTheCommand) {
  EXPECT_THAT(of("  cre"), ElementsAre("createNode"));
  EXPECT_THAT(of("\tls -s"), ElementsAre("-selection"));
}

}  // namespace
}  // namespace vesk
