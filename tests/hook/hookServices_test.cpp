// Undo, preferences and panels.

#include "hook/orvVeskCommandHook.h"
#include "tests/hook/HookTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HookServices : public HookTest {
 protected:
  void rename(const char* from, const char* to) {
    hook().renameNode(node(std::string("/") + from), to);
  }

  Texts steps() { return host.steps(); }

  std::string undoState() { return host.run("undoInfo -query -state"); }
};

const std::string kRenameB = R"(orvCompound "g" "/" -renameNode "b" "y")";
const std::string kRenameC = R"(orvCompound "g" "/" -renameNode "c" "z")";

TEST_F(HookServices, UndoAndRedoHappenWhenTheHostIsIdle) {
  rename("b", "y");
  services().undo();
  EXPECT_TRUE(node("/y")) << "not yet";
  host.takeEchoes();
  host.session().runIdleLines();
  EXPECT_TRUE(node("/b"));
  EXPECT_THAT(host.takeEchoes(), ElementsAre("undo"));

  services().redo();
  EXPECT_TRUE(node("/b")) << "not yet";
  host.session().runIdleLines();
  EXPECT_TRUE(node("/y"));
  EXPECT_THAT(host.takeEchoes(), ElementsAre("redo"));
}

TEST_F(HookServices, UndoAndRedoAreLinesOfTheJournal) {
  rename("b", "y");
  rename("c", "z");
  EXPECT_EQ(traceOf([&] {
              rename("y", "b");
              services().undo();
              services().redo();
              host.session().runIdleLines();
            }).journal,
            (Texts{R"(orvCompound "g" "/" -renameNode "y" "b")", "undo", "redo"}));
}

TEST_F(HookServices, AChunkIsOneStep) {
  EXPECT_EQ(traceOf([&] { services().openUndoChunk("drag"); }),
            silent(R"(undoInfo -openChunk -chunkName "drag")"));
  rename("b", "y");
  rename("c", "z");
  EXPECT_THAT(steps(), IsEmpty());
  services().closeUndoChunk();
  EXPECT_THAT(steps(), ElementsAre("drag"));
  host.run("undo");
  EXPECT_THAT(nodes("/"), ElementsAre("a", "b", "c", "list", "vec", "group"));
}

TEST_F(HookServices, CloseUndoChunkIsSilent) {
  const Trace both = traceOf([&] {
    services().openUndoChunk("drag");
    services().closeUndoChunk();
  });
  const Trace lines =
      silent(R"(undoInfo -openChunk -chunkName "drag")") + silent("undoInfo -closeChunk");
  EXPECT_EQ(both.journal, lines.journal);
  EXPECT_THAT(both.echoes, IsEmpty());
}

TEST_F(HookServices, AChunksNameHasUnderscoresForBlanks) {
  EXPECT_EQ(traceOf([&] { services().openUndoChunk(" move  \"two\" nodes"); }),
            silent(R"(undoInfo -openChunk -chunkName "_move__\"two\"_nodes")"));
  services().closeUndoChunk();
  EXPECT_THAT(steps(), ElementsAre("_move__\"two\"_nodes"));
}

TEST_F(HookServices, AnEmptyNameOfAChunkIsNotWritten) {
  EXPECT_EQ(traceOf([&] { services().openUndoChunk(""); }), silent("undoInfo -openChunk"));
  rename("b", "y");
  services().closeUndoChunk();
  EXPECT_THAT(steps(), ElementsAre(kRenameB));
}

TEST_F(HookServices, AbandonUndoChunkTakesBackWhatItDid) {
  rename("b", "y");
  services().openUndoChunk("drag");
  rename("c", "z");
  services().abandonUndoChunk();
  EXPECT_TRUE(node("/z")) << "not yet";
  host.session().runIdleLines();
  EXPECT_TRUE(node("/c"));
  EXPECT_TRUE(node("/y")) << "what was done before stays";
  EXPECT_THAT(steps(), ElementsAre(kRenameB));
}

/// Takes over what abandoning is made of, and notes it.
class OwnAbandoning final : public orvVeskCommandHook {
 public:
  void closeUndoChunk() override { calls.emplace_back("close"); }
  void undo() override { calls.emplace_back("undo"); }
  hosttest::Texts calls;
};

TEST_F(HookServices, AbandonUndoChunkReachesOverrides) {
  OwnAbandoning own;
  ASSERT_EQ(&services(), static_cast<AppServicesHook*>(&own));
  EXPECT_EQ(traceOf([&] { services().abandonUndoChunk(); }), Trace{});
  EXPECT_THAT(own.calls, ElementsAre("close", "undo"));
}

// Suspension of undo.

TEST_F(HookServices, SetUndoSuspendedTurnsTheWordRound) {
  EXPECT_EQ(traceOf([&] { services().setUndoSuspended(true); }),
            silent("undoInfo -stateWithoutFlush false"));
  EXPECT_EQ(undoState(), "false");
  EXPECT_EQ(traceOf([&] { services().setUndoSuspended(false); }),
            silent("undoInfo -stateWithoutFlush true"));
  EXPECT_EQ(undoState(), "true");
}

TEST_F(HookServices, WhatRunsWhileUndoIsSuspendedIsNotKept) {
  rename("b", "y");
  services().setUndoSuspended(true);
  rename("c", "z");
  EXPECT_TRUE(node("/z")) << "it runs all the same";
  services().setUndoSuspended(false);
  EXPECT_THAT(steps(), ElementsAre(kRenameB)) << "what lay there survives";
  host.run("undo");
  EXPECT_TRUE(node("/b"));
  EXPECT_TRUE(node("/z"));
  host.run("redo");
  EXPECT_TRUE(node("/y"));
}

TEST_F(HookServices, EveryFormOfLineTakesPartInSuspension) {
  services().setUndoSuspended(true);
  EXPECT_EQ(traceOf([&] { rename("b", "y"); }), unrecorded(kRenameB));
  EXPECT_EQ(traceOf([&] { hook().addNode(top(), "core::math::add", ""); }),
            unrecorded(R"(orvCompound "g" "/" -addNode "core::math::add")"));
  EXPECT_EQ(traceOf([&] { hook().connectPorts(port("/a.result"), port("/y.value"), false); }),
            unrecorded(R"(orvConnect "g" "/a.result" "/y.value")"));
  EXPECT_EQ(traceOf([&] { hook().openChangeBracket(&graph); }),
            silent(R"(orvChangeBracket "g" -open)"));
  EXPECT_EQ(traceOf([&] { hook().closeChangeBracket(&graph); }),
            silent(R"(orvChangeBracket "g" -close)"));
  services().setUndoSuspended(false);
  EXPECT_EQ(traceOf([&] { rename("c", "z"); }), edit(kRenameC));
}

TEST_F(HookServices, SuspensionHoldsAlsoWhenTheHostRecordsAgain) {
  services().setUndoSuspended(true);
  host.run("undoInfo -stateWithoutFlush true");
  EXPECT_EQ(traceOf([&] { rename("b", "y"); }), unrecorded(kRenameB));
  services().setUndoSuspended(false);
}

TEST_F(HookServices, IsUndoingAndIsRedoingAreTheHostsAnswers) {
  Texts answers;
  const auto ask = [&](const std::string& when) {
    if (services().isUndoing()) answers.push_back(when + ": undoing");
    if (services().isRedoing()) answers.push_back(when + ": redoing");
    return KStatus(StatusSuccess);
  };
  addProbe(host, "asking",
           {.doIt = [&](auto&, auto&) { return ask("do"); },
            .undoIt = [&] { return ask("undo"); },
            .redoIt = [&] { return ask("redo"); },
            .undoable = true});
  host.run("asking");
  host.run("undo");
  host.run("redo");
  EXPECT_THAT(answers, ElementsAre("undo: undoing", "redo: redoing"));
  EXPECT_FALSE(services().isUndoing());
  EXPECT_FALSE(services().isRedoing());
}

TEST_F(HookServices, NoLineIsHeldBackWhileTheHostUndoes) {
  addProbe(host, "asking",
           {.undoIt =
                [&] {
                  rename("b", "y");
                  return KStatus(StatusSuccess);
                },
            .undoable = true});
  host.run("asking");
  host.run("undo");
  EXPECT_TRUE(node("/y"));
}

// The parameter editor.

/// The name glued to its flag is a command of its own to the host.
TEST_F(HookServices, ShowParameterEditor) {
  replace("orvParameterEditor", {});
  hosttest::takeDiary();
  EXPECT_EQ(traceOf([&] { services().showParameterEditor(0); }), silent("orvParameterEditor;"));
  EXPECT_THAT(hosttest::takeDiary(), testing::Contains("doIt orvParameterEditor"));
  EXPECT_EQ(traceOf([&] { services().showParameterEditor(2); }), silent("orvParameterEditor;"));
  const Trace info = traceOf([&] { services().showParameterEditor(1); });
  EXPECT_EQ(info.journal.back(), "orvParameterEditor-info;");
  EXPECT_THAT(info.echoes, IsEmpty());
  EXPECT_THAT(host.takeMessages(), ElementsAre("! unknown command \"orvParameterEditor-info\""));
}

}  // namespace
