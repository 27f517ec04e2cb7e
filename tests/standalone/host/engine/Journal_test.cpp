#include "standalone/host/engine/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "standalone/host/language/Tokenizer.h"
#include "tests/support/ProbeCommand.h"
#include "tests/support/TemporaryFiles.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::EndsWith;

/// A host that writes a journal.
class JournalTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(host.session().journal().open(files.path("journal"))); }

  std::string journal() const { return files.read("journal"); }

  TemporaryFiles files;
  ProbeHost host;
};

TEST_F(JournalTest, HoldsTheLinesInOrderAsTheyWereTyped) {
  host.run("edit a;  edit \"b c\"");
  host.run("  about -batch // why");
  EXPECT_EQ(journal(), "edit a;  edit \"b c\"\n  about -batch // why\n");
}

TEST_F(JournalTest, HoldsALineAsSoonAsItHasFinished) {
  host.run("edit a");
  EXPECT_EQ(journal(), "edit a\n");
  host.run("edit b");
  EXPECT_EQ(journal(), "edit a\nedit b\n");
}

TEST_F(JournalTest, HoldsNoLineThatACommandRan) {
  addProbe(host, "run", {.doIt = [](KPxCommand&, const KArgList& lines) {
             return KGlobal::executeCommand(lines.asString(0), true, true);
           }});
  host.run("run \"edit a\"");
  EXPECT_EQ(journal(), "run \"edit a\"\n");
}

TEST_F(JournalTest, HoldsNoLineOfAScriptThatIsSourced) {
  const std::string line = "source " + vesk::quoted(files.write("script", "edit a\nedit b\n"));
  host.run(line);
  EXPECT_EQ(journal(), line + "\n");
}

TEST_F(JournalTest, HoldsIdleLines) {
  KGlobal::executeCommandOnIdle("edit a", true);
  host.run("about -batch");
  EXPECT_EQ(journal(), "about -batch\nedit a\n");
}

TEST_F(JournalTest, TellsOfWhatALineLeftForIdleTimeButAReplayOfTheLineLeavesItAgain) {
  addProbe(host, "leave", {.doIt = [](KPxCommand&, const KArgList& lines) {
             return KGlobal::executeCommandOnIdle(lines.asString(0), true);
           }});
  host.run("leave \"edit a\"");
  EXPECT_EQ(journal(), "leave \"edit a\"\n// when idle: edit a\n");
}

TEST_F(JournalTest, ANoteIsACommentOfOneLine) {
  host.session().journal().note("one\ntwo");
  EXPECT_EQ(journal(), "// one\\x0atwo\n");
}

TEST_F(JournalTest, IsWrittenNoMoreOnceItIsClosed) {
  host.run("edit a");
  host.session().journal().close();
  host.run("edit b");
  EXPECT_EQ(journal(), "edit a\n");
}

TEST_F(JournalTest, TellsWhatIsUnusualAheadOfTheLine) {
  vesk::ResultValue result;
  vesk::CommandEngine& engine = host.session().engine();
  engine.run("edit a", result, {.undo = false});
  engine.run("edit b", result, {.display = false});
  engine.run("edit c", result, {.display = false, .undo = false});
  EXPECT_EQ(journal(),
            "// without undo\nedit a\n"
            "// without echo\nedit b\n"
            "// without undo without echo\nedit c\n");
}

TEST_F(JournalTest, TellsWhichLinesFailed) {
  host.refusal("unknown");
  host.refusal("edit a; undoInfo -closeChunk");
  EXPECT_EQ(journal(),
            "// Error: unknown command \"unknown\"\n// failed with status 3\nunknown\n"
            "// Error: undoInfo: no undo chunk is open\n"
            "// failed with status 1\nedit a; undoInfo -closeChunk\n");
}

TEST_F(JournalTest, HoldsALineThatCannotBeReadAsAComment) {
  host.refusal("edit \"a");
  EXPECT_THAT(journal(), EndsWith("// failed with status 3\n// not readable: edit \"a\n"));
  host.refusal("edit a\nedit \"b");
  EXPECT_THAT(journal(), EndsWith("// not readable: edit a\\x0aedit \"b\n"));
}

TEST_F(JournalTest, StaysReadableWhateverTheLineHeld) {
  host.refusal(std::string_view("edit \xFF\0 \"b", 10));
  EXPECT_THAT(journal(), EndsWith("// not readable: edit \\xff\\x00 \"b\n"));
  host.run("source " + vesk::quoted(files.path("journal")));
}

TEST_F(JournalTest, HoldsErrorsAndWarningsAheadOfTheirLine) {
  addProbe(host, "tell", {.doIt = [](KPxCommand&, const KArgList&) {
             KGlobal::displayWarning("take\ncare");
             KGlobal::displayError("wrong");
             return KStatus();
           }});
  host.run("tell");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? take\ncare", "! wrong"));
  EXPECT_EQ(journal(), "// Warning: take\\x0acare\n// Error: wrong\ntell\n");
}

TEST(JournalOnAFullDisk, IsToldOnce) {
  ProbeHost host;
  ASSERT_TRUE(host.session().journal().open("/dev/full"));
  host.run("edit a");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! the journal \"/dev/full\" cannot be written any more"));
  host.run("edit b");
}

TEST_F(JournalTest, LeadsBackToTheSameState) {
  addProbe(host, "run", {.doIt = [](KPxCommand&, const KArgList& lines) {
             return KGlobal::executeCommand(lines.asString(0), true, true);
           }});
  host.run("edit a\nedit \"b \\\"quoted\\\"\"");
  host.run("run \"edit c\"; undo; undo");
  host.run("undoInfo -ock -cn chunk");
  host.run("edit \u00e9");
  host.run("undoInfo -cck");
  host.refusal("edit \"not readable");
  const Texts steps = host.steps();
  EXPECT_THAT(steps, ElementsAre("edit a", "chunk"));
  const std::string script = files.write("again", journal());
  host.run("undoInfo -state off; undoInfo -state on");
  host.run("source " + vesk::quoted(script));
  EXPECT_EQ(host.steps(), steps);
}

TEST_F(JournalTest, BeginsItsFileAnew) {
  host.run("edit a");
  ASSERT_TRUE(host.session().journal().open(files.path("journal")));
  host.run("edit b");
  EXPECT_EQ(journal(), "edit b\n");
}

TEST(Journal, ThatCannotBeWrittenIsNotOpen) {
  vesk::MessageChannel messages;
  vesk::Journal journal(messages);
  EXPECT_FALSE(journal.open("/no such folder/journal"));
  journal.write("line", {}, StatusSuccess);
}

}  // namespace
