#include "tests/commands/clipboard/ClipboardTesting.h"
#include "tests/commands/clipboard/WatchPointTesting.h"

namespace {

using testing::IsEmpty;
using testing::SizeIs;

class WatchPointCommandTest : public WatchPointTest {};

TEST_F(WatchPointCommandTest, CreatesAndRemoves) {
  EXPECT_EQ(run("-create"), "");
  EXPECT_EQ(run("-queryHasWatchPoint"), "true");
  EXPECT_TRUE(watchPoint("/add.result"));
  EXPECT_EQ(run("-remove"), "");
  EXPECT_EQ(run("-queryHasWatchPoint"), "false");
}

TEST_F(WatchPointCommandTest, EnablesAndDisables) {
  run("-create");
  EXPECT_EQ(run("-queryIsEnabled"), "true");
  run("-enable false");
  EXPECT_EQ(run("-queryIsEnabled"), "false");
  run("-enable true");
  EXPECT_EQ(run("-queryIsEnabled"), "true");
}

TEST_F(WatchPointCommandTest, SetsParameters) {
  run("-create");
  run("-setParameterValue limit 3");
  run("-setParameterValue record changes");
  EXPECT_EQ(run("-queryParameterValue limit"), "\"3\"");
  EXPECT_EQ(run("-queryParameterValue record"), "\"changes\"");
}

TEST_F(WatchPointCommandTest, EditsMetadata) {
  run("-create");
  run("-setMetaData color red");
  run("-addMetaData tag a");
  run("-addMetaData tag b");
  EXPECT_EQ(metadata(), "{color=red,tag={a,b}}");
  run("-removeMetaData tag a -clearMetaData color");
  EXPECT_EQ(metadata(), "{tag=b}");
  run("-setMetaDataFromString {x=1}");
  EXPECT_EQ(metadata(), "{x=1}");
}

// Every edit, there and back.

TEST_F(WatchPointCommandTest, EachEditCanBeUndoneAndRedone) {
  sweepLine(line("-create"));
  sweepLine(line("-create -enable false -setParameterValue limit 3"));
  run("-create");
  for (const char* flags : {"-remove", "-enable false", "-spv limit 3", "-spv record changes",
                            "-spv format fixed", "-spv digits 2", "-smd k v", "-amd k v",
                            "-mfs {k=v}", "-e false -spv limit 3 -smd k v", "-smd k v -remove"}) {
    sweepLine(line(flags));
  }
  run("-smd k v");
  for (const char* flags : {"-rmd k v", "-cmd k", "-smd k w", "-remove"}) sweepLine(line(flags));
}

TEST_F(WatchPointCommandTest, EachEditIsAStepAndAQueryIsNone) {
  run("-create");
  EXPECT_THAT(host.steps(), SizeIs(1));
  for (const char* flags : {"", "-qw", "-qe", "-qps", "-qpd limit", "-qvs limit", "-qvd record all",
                            "-qpv limit", "-qrv value", "-mas", "-qms"}) {
    run(flags);
    EXPECT_THAT(host.steps(), SizeIs(1)) << flags;
  }
  run("-enable true");
  EXPECT_THAT(host.steps(), SizeIs(2)) << "also when nothing changed by it";
}

TEST_F(WatchPointCommandTest, ARemovedWatchPointComesBackWithItsParametersAndMetadata) {
  run("-create -enable false -spv limit 3");
  run("-smd k v");
  run("-remove");
  undo();
  EXPECT_EQ(run("-qe"), "false");
  EXPECT_EQ(run("-qpv limit"), "\"3\"");
  EXPECT_EQ(metadata(), "{k=v}");
}

TEST_F(WatchPointCommandTest, RunsTheEditsOfALineInTheirOwnOrder) {
  run("-spv limit 3 -enable false -create");
  EXPECT_EQ(run("-qe"), "false");
  EXPECT_EQ(run("-qpv limit"), "\"3\"");
}

/// Creating goes ahead of removing, so this leaves none.
TEST_F(WatchPointCommandTest, CreatingAndRemovingInOneLineLeavesNone) {
  run("-remove -create");
  EXPECT_EQ(run("-qw"), "false");
  EXPECT_THAT(host.steps(), SizeIs(1));
  run("-create");
  run("-create -remove");
  EXPECT_EQ(run("-qw"), "false") << "of a port that has one only the removal is recorded";
}

// What the library does not record does nothing; the line succeeds and can be undone.

TEST_F(WatchPointCommandTest, WhatTheLibraryDoesNotRecordIsPassedOver) {
  run("-remove");
  run("-enable true");
  run("-spv limit 3");
  EXPECT_EQ(run("-qw"), "false");
  run("-create");
  const std::string before = stored();
  for (const char* flags : {"-create", "-spv nothing 3", "-spv limit 0", "-spv limit many",
                            "-spv record none", "-spv \"\" \"\"", "-spv limit \"\""}) {
    const std::size_t steps = host.steps().size();
    EXPECT_EQ(run(flags), "") << flags;
    EXPECT_EQ(stored(), before) << flags;
    EXPECT_EQ(host.steps().size(), steps + 1) << flags;
  }
}

TEST_F(WatchPointCommandTest, ASecondWatchPointIsNotMadeAndItsOtherEditsAre) {
  run("-create");
  run("-create -enable false");
  EXPECT_EQ(run("-qe"), "false");
  undo();
  EXPECT_EQ(run("-qe"), "true");
}

// Queries.

TEST_F(WatchPointCommandTest, AnswersEachQuery) {
  run("-create");
  EXPECT_EQ(run("-queryHasWatchPoint"), "true");
  EXPECT_EQ(run("-queryIsEnabled"), "true");
  EXPECT_EQ(run("-queryParameters"), R"(["record","limit","format","digits"])");
  EXPECT_EQ(run("-queryParameterDescription record"), "\"Which evaluations are recorded.\"");
  EXPECT_EQ(run("-queryParameterValues record"), R"(["all","changes"])");
  EXPECT_EQ(run("-queryParameterValues limit"), "[]");
  EXPECT_EQ(run("-queryParameterValueDescription record changes"),
            "\"Each evaluation that gave another value.\"");
  EXPECT_EQ(run("-queryParameterValue limit"), "\"100\"");
  EXPECT_EQ(run("-queryRecordedValues value"), R"(["0"])");
}

TEST_F(WatchPointCommandTest, GivesWhatWasRecordedTheOldestFirst) {
  run("-create");
  set("a", "5");
  set("b", "0.5");
  EXPECT_EQ(run("-qrv value"), R"(["0","5","5.5"])");
  undo();
  EXPECT_EQ(run("-qrv value"), R"(["0","5","5.5","5"])");
  EXPECT_EQ(run("-qrv evaluation"), R"(["1","2","3","4"])");
}

TEST_F(WatchPointCommandTest, RecordsAsItsParametersSay) {
  run("-create -spv record changes");
  set("a", "5");
  {
    const ORV_v1::ChangeBracket bracket = graph.makeChangeBracket(nullptr);
    set("a", "2");
    set("b", "3");
  }
  set("a", "1");
  EXPECT_EQ(run("-qrv value"), R"(["0","5","4"])");
  run("-spv limit 2");
  EXPECT_EQ(run("-qrv value"), R"(["5","4"])");
  run("-enable false");
  set("a", "100");
  EXPECT_EQ(run("-qrv value"), R"(["5","4"])");
}

TEST_F(WatchPointCommandTest, OfAPortWithoutAWatchPointOnlyThatIsAnswered) {
  EXPECT_EQ(run("-qw"), "false");
  EXPECT_EQ(run("-qw -qe -qps"), "false");
  for (const char* flags : {"-qe", "-qps", "-qpd limit", "-qvs limit", "-qvd record all",
                            "-qpv limit", "-qrv value", "-qe -mas"}) {
    EXPECT_THAT(refusal(flags), IsEmpty()) << flags;
  }
}

TEST_F(WatchPointCommandTest, WhatTheWatchPointDoesNotKnowFailsWithoutAMessage) {
  run("-create");
  for (const std::string name :
       {"nothing", "\"\"", "\" \"", "\"日本\"", "\"a\\nb\"", "\"limit \"", "\"\\\"\"", "LIMIT"}) {
    for (const std::string flag : {"-qpd ", "-qvs ", "-qpv ", "-qrv "}) {
      EXPECT_THAT(refusal(flag + name), IsEmpty()) << flag << name;
    }
    EXPECT_THAT(refusal("-qvd " + name + " all"), IsEmpty());
    EXPECT_THAT(refusal("-qvd record " + name), IsEmpty());
  }
  EXPECT_THAT(refusal("-qpv " + std::string(1000, 'x')), IsEmpty());
}

TEST_F(WatchPointCommandTest, AnswersTheFirstQueryOfTheTableAlone) {
  run("-create -enable false");
  EXPECT_EQ(run("-qrv value -qpv record -qvd record all -qvs record -qpd record -qps -qe -qw"),
            "true");
  EXPECT_EQ(run("-qps -qe"), "false");
  EXPECT_EQ(run("-qpd record -qps"), R"(["record","limit","format","digits"])");
  EXPECT_EQ(run("-qvs record -qpd record"), run("-qpd record"));
  EXPECT_EQ(run("-qvd record all -qvs record"), R"(["all","changes"])");
  EXPECT_EQ(run("-qpv record -qvd record all"), run("-qvd record all"));
  EXPECT_EQ(run("-qrv limit -qpv record"), "\"100\"") << "the name is that of the later flag";
}

TEST_F(WatchPointCommandTest, AQueryGetsTheNameThatALaterFlagGave) {
  run("-create");
  EXPECT_EQ(run("-qpd record -qpv limit"), run("-qpd limit"));
  EXPECT_THAT(refusal("-qpv limit -qrv value"), IsEmpty()) << "there is no parameter value";
}

TEST_F(WatchPointCommandTest, ALineThatEditsAnswersNothing) {
  EXPECT_EQ(run("-create -qw"), "");
  EXPECT_EQ(run("-enable true -qps"), "");
  EXPECT_EQ(run("-smd k v -qw"), "");
  EXPECT_EQ(run("-qw"), "true");
}

/// The flags are read, and nobody answers them.
TEST_F(WatchPointCommandTest, MetadataQueriesAreNotAnswered) {
  run("-create");
  run("-smd k v");
  for (const char* flags : {"-mas", "-qms", "-qmd k", "-mas -qms -qmd k", "-smd k w -qmd k"}) {
    EXPECT_EQ(run(flags), "") << flags;
  }
  EXPECT_EQ(run("-mas -qw"), "true") << "the query is answered alone";
  EXPECT_EQ(run("-qms -qpv limit"), "\"100\"");
}

TEST_F(WatchPointCommandTest, WithoutFlagsThereIsNothingToDo) {
  EXPECT_EQ(run(""), "");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(WatchPointCommandTest, ClearsTheResultThatTheLineHad) {
  addCommand("watchAfter", WithOldResult<orvWatchPointCmd>::creator,
             orvWatchPointCmd::createSyntax());
  EXPECT_EQ(host.run("watchAfter g /add result -create"), "");
  EXPECT_EQ(host.run("watchAfter g /add result"), "");
}

// Which port.

TEST_F(WatchPointCommandTest, InputsOfANodeCanBeWatched) {
  run("-create", "/add a");
  set("a", "7");
  EXPECT_EQ(run("-qrv value", "/add a"), R"(["0","7"])");
}

TEST_F(WatchPointCommandTest, OfAnOutputOfACompoundTheInnerFaceComesFirst) {
  run("-create", "/group out");
  EXPECT_TRUE(innerWatchPoint("/group.out"));
  EXPECT_FALSE(watchPoint("/group.out"));
}

TEST_F(WatchPointCommandTest, OfAnInputOfACompoundItIsTheOuterFace) {
  run("-create", "/group size");
  EXPECT_TRUE(watchPoint("/group.size"));
  EXPECT_FALSE(innerWatchPoint("/group.size"));
}

TEST_F(WatchPointCommandTest, AnOutputOfTheTopCompoundCanBeWatched) {
  sweepLine(line("-create", "\"/\" bottom"));
}

// Compounds that cannot be edited.

TEST_F(WatchPointCommandTest, InACompoundThatIsNotEditableEditsFailWithoutAMessage) {
  run("-create");
  lock("/");
  const std::string before = stored();
  for (const char* flags :
       {"-create", "-remove", "-enable false", "-spv limit 3", "-create -remove -smd k v -qw"}) {
    EXPECT_THAT(refusal(flags), IsEmpty()) << flags;
    EXPECT_THAT(refusal(flags, "/group size"), IsEmpty()) << flags << " at the level around";
    EXPECT_EQ(stored(), before) << flags;
  }
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(WatchPointCommandTest, InACompoundThatIsNotEditableMetadataAloneAreEdited) {
  run("-create");
  lock("/");
  for (const char* flags : {"-smd k v", "-amd k v", "-mfs {k=v}"}) sweepLine(line(flags));
}

TEST_F(WatchPointCommandTest, InACompoundThatIsNotEditableQueriesAreAnswered) {
  run("-create");
  lock("/");
  EXPECT_EQ(run("-qw"), "true");
  EXPECT_EQ(run("-qpv limit"), "\"100\"");
}

/// Of an inner face it is the compound of the port that counts, of any other the one around.
TEST_F(WatchPointCommandTest, TheFaceSaysWhichCompoundMustBeEditable) {
  lock("/group");
  EXPECT_THAT(refusal("-create", "/group out"), IsEmpty());
  EXPECT_THAT(refusal("-create", "/group/add result"), IsEmpty());
  run("-create", "/group size");
  EXPECT_TRUE(watchPoint("/group.size"));
}

TEST_F(WatchPointCommandTest, APortOfNoCompoundIsNotEdited) {
  EXPECT_THAT(refusal("-create", "\"/\" top"), IsEmpty());
  EXPECT_EQ(run("-qw", "\"/\" top"), "false");
}

}  // namespace
