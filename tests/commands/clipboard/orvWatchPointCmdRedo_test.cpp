// Undo and redo by hand, the order of the library calls, and what comes of each that is refused.

#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "tests/commands/clipboard/WatchPointTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;

/// The command, which stays at hand while it is on the undo queue.
class HeldWatchPoint final : public orvWatchPointCmd {
 public:
  static KPxCommand* creator() { return new HeldWatchPoint; }
  KStatus doIt(const KArgList& args) override {
    last = this;
    return orvWatchPointCmd::doIt(args);
  }
  static inline orvWatchPointCmd* last = nullptr;
};

class WatchPointRedo : public WatchPointTest {
 protected:
  WatchPointRedo() {
    addCommand("heldWatchPoint", HeldWatchPoint::creator, orvWatchPointCmd::createSyntax());
  }

  void hold(const std::string& flags, const std::string& port = "/add result") {
    host.run("heldWatchPoint g " + port + " " + flags);
  }
  static KStatusCode undoIt() { return HeldWatchPoint::last->undoIt().statusCode(); }
  static KStatusCode redoIt() { return HeldWatchPoint::last->redoIt().statusCode(); }

  ORV_v1::AddRefWrapper<ORV_v1::Compound> top() { return graph.getTopNode()->asCompound(); }

  /// Takes the node out of the graph, past the host's undo queue.
  void remove(const char* name) {
    ORV_v1::NodeCommand command;
    EXPECT_TRUE(command.removeNode(top(), name));
    EXPECT_TRUE(command.doit());
  }

  /// Makes the top compound one that cannot be edited, past the host's undo queue.
  void lockQuietly() {
    ORV_v1::MetadataCommand command;
    ORV_v1::StringArray values;
    values.add("true");
    EXPECT_TRUE(command.setParentCompound(&graph, "/"));
    EXPECT_TRUE(command.setMetadata("locked", values));
    EXPECT_TRUE(command.doit());
    EXPECT_FALSE(top()->isEditable());
  }

  /// Runs a line that must fail without a message, with that call refused.
  void failsQuietly(const char* fault, const std::string& flags) {
    const ArmedFault armed(fault);
    ASSERT_TRUE(armed.isArmed()) << fault;
    EXPECT_THAT(refusal(flags), IsEmpty()) << fault;
    EXPECT_TRUE(armed.refused()) << fault;
  }
};

/// The calls of the library's commands that were made while it lives.
class CommandCalls {
 public:
  hosttest::Texts take() const {
    hosttest::Texts names;
    for (const std::string_view name : orvlib::FaultPoints::askedNames()) {
      if (name.find("Command ") != name.npos) names.emplace_back(name);
    }
    return names;
  }

 private:
  static constexpr unsigned kNever = 1'000'000;
  const ArmedFault counting_{kNever};
};

TEST_F(WatchPointRedo, MetadataAreReadAndRunAheadOfTheOtherEdits) {
  run("-create");
  const CommandCalls calls;
  run("-spv limit 3 -enable false -remove -create -smd k v");
  EXPECT_THAT(
      calls.take(),
      ElementsAre("MetadataCommand setParentWatchPoint", "MetadataCommand setMetadata",
                  "WatchPointCommand createWatchPoint", "WatchPointCommand removeWatchPoint",
                  "WatchPointCommand enableWatchPoint", "WatchPointCommand setWatchPointParameter",
                  "MetadataCommand redo", "WatchPointCommand redo"));
}

/// It is no mirror of the redo.
TEST_F(WatchPointRedo, AnUndoHasMetadataFirstToo) {
  run("-create");
  run("-enable false -smd k v");
  const CommandCalls calls;
  undo();
  redo();
  EXPECT_THAT(calls.take(), ElementsAre("MetadataCommand undo", "WatchPointCommand undo",
                                        "MetadataCommand redo", "WatchPointCommand redo"));
}

TEST_F(WatchPointRedo, WithoutMetadataThoseAreNotAsked) {
  const CommandCalls calls;
  run("-create");
  undo();
  EXPECT_THAT(calls.take(), ElementsAre("MetadataCommand setParentWatchPoint",
                                        "WatchPointCommand createWatchPoint",
                                        "WatchPointCommand redo", "WatchPointCommand undo"));
}

TEST_F(WatchPointRedo, AQueryCallsNoCommand) {
  run("-create");
  const CommandCalls calls;
  run("-qpv limit");
  EXPECT_THAT(calls.take(), ElementsAre("MetadataCommand setParentWatchPoint"));
}

TEST_F(WatchPointRedo, APortThatWentMakesTheRedoFailAndIsNamed) {
  hold("-create");
  EXPECT_EQ(undoIt(), StatusSuccess);
  remove("add");
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /add is not a node name"));
}

TEST_F(WatchPointRedo, ACompoundThatWasLockedSinceMakesTheRedoFailWithoutAMessage) {
  hold("-create");
  EXPECT_EQ(undoIt(), StatusSuccess);
  lockQuietly();
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_FALSE(watchPoint("/add.result"));
}

/// The undo does not ask whether the compound is editable.
TEST_F(WatchPointRedo, ACompoundThatWasLockedSinceDoesNotKeepTheUndoBack) {
  hold("-create");
  lockQuietly();
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_FALSE(watchPoint("/add.result"));
}

TEST_F(WatchPointRedo, AnUndoSucceedsWhateverHappens) {
  run("-create");
  hold("-enable false -smd k v");
  {
    const ArmedFault armed("MetadataCommand undo");
    EXPECT_EQ(undoIt(), StatusSuccess);
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_TRUE(watchPoint("/add.result")->isEnabled()) << "the second step runs all the same";
  EXPECT_EQ(metadata(), "{k=v}");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_EQ(metadata(), "{}");
  EXPECT_EQ(undoIt(), StatusSuccess) << "there is nothing left to undo";
}

TEST_F(WatchPointRedo, AnUndoThatTheLibraryRefusesSucceedsToo) {
  hold("-create");
  const ArmedFault armed("WatchPointCommand undo");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_TRUE(armed.refused());
  EXPECT_TRUE(watchPoint("/add.result"));
}

TEST_F(WatchPointRedo, AnUndoAfterThePortWentSucceedsWithoutAMessage) {
  hold("-create");
  remove("add");
  EXPECT_EQ(undoIt(), StatusSuccess);
}

TEST_F(WatchPointRedo, ASecondRedoFails) {
  hold("-create");
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_TRUE(watchPoint("/add.result"));
}

// Refused calls.

TEST_F(WatchPointRedo, WhatIsNotRecordedIsNotDoneAndTheLineSucceeds) {
  const struct {
    const char* fault;
    const char* flags;
    bool needsOne;
  } rows[] = {{"WatchPointCommand createWatchPoint", "-create", false},
              {"WatchPointCommand removeWatchPoint", "-remove", true},
              {"WatchPointCommand enableWatchPoint", "-enable false", true},
              {"WatchPointCommand setWatchPointParameter", "-spv limit 3", true}};
  for (const auto& row : rows) {
    if (row.needsOne && run("-qw") == "false") run("-create");
    const std::string before = stored();
    const ArmedFault armed(row.fault);
    EXPECT_EQ(run(row.flags), "") << row.fault;
    EXPECT_TRUE(armed.refused()) << row.fault;
    EXPECT_EQ(stored(), before) << row.fault;
  }
}

TEST_F(WatchPointRedo, WhatTheLibraryRefusesToDoFailsWithoutAMessageAndIsNoStep) {
  failsQuietly("WatchPointCommand redo", "-create");
  failsQuietly("edit setWatchPoint", "-create");
  EXPECT_FALSE(watchPoint("/add.result"));
  run("-create");
  host.session().undoQueue().clear();
  failsQuietly("WatchPointCommand redo", "-enable false");
  failsQuietly("WatchPointCommand redo", "-smd k v");
  EXPECT_THAT(host.steps(), IsEmpty());
}

/// They were done first, and nothing takes them back.
TEST_F(WatchPointRedo, MetadataStayWhenTheOtherEditsFail) {
  run("-create");
  failsQuietly("WatchPointCommand redo", "-enable false -smd k v");
  EXPECT_EQ(metadata(), "{k=v}");
  EXPECT_TRUE(watchPoint("/add.result")->isEnabled());
}

TEST_F(WatchPointRedo, MetadataThatFailKeepTheOtherEditsBack) {
  run("-create");
  failsQuietly("MetadataCommand redo", "-enable false -smd k v");
  EXPECT_EQ(metadata(), "{}");
  EXPECT_TRUE(watchPoint("/add.result")->isEnabled());
}

/// They are read before there is a watch point to have them.
TEST_F(WatchPointRedo, ALineThatCreatesAWatchPointAndGivesItMetadataFails) {
  EXPECT_THAT(refusal("-create -smd k v"), IsEmpty());
  EXPECT_FALSE(watchPoint("/add.result"));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(WatchPointRedo, MetadataOfAPortWithoutAWatchPointFailWithoutAMessage) {
  for (const char* flags : {"-smd k v", "-amd k v", "-rmd k v", "-cmd k", "-mfs {k=v}"}) {
    EXPECT_THAT(refusal(flags), IsEmpty()) << flags;
  }
}

TEST_F(WatchPointRedo, AQueryThatTheLibraryRefusesFailsWithoutAMessage) {
  run("-create");
  failsQuietly("WatchPoint getParameterNames", "-qps");
  failsQuietly("WatchPoint getParameterDescription", "-qpd limit");
  failsQuietly("WatchPoint getParameterValues", "-qvs record");
  failsQuietly("WatchPoint getParameterValueDescription", "-qvd record all");
  failsQuietly("WatchPoint getParameterValue", "-qpv limit");
  failsQuietly("WatchPoint getRecordedValues", "-qrv value");
}

TEST_F(WatchPointRedo, WhicheverCallOfALineIsRefusedTheUndoQueueFits) {
  run("-create");
  host.session().undoQueue().clear();
  const std::string before = stored();
  for (unsigned nth = 1; nth <= 20; ++nth) {
    const ArmedFault armed(nth);
    const bool worked = host.status(line("-enable false -spv limit 3")) == StatusSuccess;
    host.takeMessages();
    EXPECT_EQ(host.steps().size(), worked ? 1u : 0u) << nth;
    orvlib::FaultPoints::disarm();
    if (worked) undo();
    EXPECT_EQ(stored(), before) << nth;
    host.session().undoQueue().clear();
  }
}

// Names that are empty reach the library, which knows none of that name.

TEST_F(WatchPointRedo, AnEmptyParameterNameIsAskedForAsItStands) {
  run("-create");
  for (const auto& [flags, call] : std::initializer_list<std::pair<const char*, const char*>>{
           {"-qpd \"\"", "WatchPoint getParameterDescription"},
           {"-qvs \"\"", "WatchPoint getParameterValues"},
           {"-qvd \"\" all", "WatchPoint getParameterValueDescription"},
           {"-qvd record \"\"", "WatchPoint getParameterValueDescription"},
           {"-qpv \"\"", "WatchPoint getParameterValue"},
           {"-qrv \"\"", "WatchPoint getRecordedValues"}}) {
    const ArmedFault counting(1'000'000u);
    EXPECT_THAT(refusal(flags), IsEmpty()) << flags;
    EXPECT_THAT(orvlib::FaultPoints::askedNames(), testing::Contains(call)) << flags;
  }
}

TEST_F(WatchPointRedo, AnEmptyParameterNameIsSetAsItStands) {
  run("-create");
  const ArmedFault counting(1'000'000u);
  run("-spv \"\" \"\"");
  EXPECT_THAT(orvlib::FaultPoints::askedNames(),
              testing::Contains("WatchPointCommand setWatchPointParameter"));
}

}  // namespace
