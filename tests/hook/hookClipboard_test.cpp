// The clipboard and change brackets.

#include "hook/orvVeskCommandHook.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "tests/hook/HookTesting.h"

namespace {

using orvUI_v1::EditSelection;
using testing::ElementsAre;
using testing::IsEmpty;

class HookClipboard : public HookTest {
 protected:
  HookClipboard() {
    orvlib::Clipboard::setLocal(true);
    orvlib::Clipboard::setText("");
  }
  ~HookClipboard() override { orvlib::Clipboard::setLocal(false); }

  Selection select(const Texts& paths, const Texts& annotationNames) {
    return {listOf(paths), annotationListOf(annotationNames)};
  }

  bool copy(const Texts& paths, const Texts& annotationNames = {}) {
    const Selection selected = select(paths, annotationNames);
    return hook().copySelection(selected.in(top()));
  }
};

TEST_F(HookClipboard, CopySelectionJoinsShortNames) {
  const Selection selected = select({"/b", "/a"}, {"note", "frame"});
  bool done = false;
  EXPECT_EQ(traceOf([&] { done = hook().copySelection(selected.in(top())); }),
            shown(R"(orvCopy "g" "/" -sourceNode "{b,a}" -sourceAnnotation "{note,frame}")"));
  EXPECT_TRUE(done);
  EXPECT_NE(orvlib::Clipboard::text(), "");
}

TEST_F(HookClipboard, CopySelectionLeavesOutWhatIsEmpty) {
  EXPECT_EQ(traceOf([&] { copy({"/a"}); }), shown(R"(orvCopy "g" "/" -sourceNode "a")"));
  EXPECT_EQ(traceOf([&] { copy({}, {"note"}); }),
            shown(R"(orvCopy "g" "/" -sourceAnnotation "note")"));
}

TEST_F(HookClipboard, CopySelectionOfNothingStillRunsALine) {
  const Trace trace = traceOf([&] { copy({}); });
  EXPECT_EQ(trace.journal.back(), R"(orvCopy "g" "/")");
  EXPECT_THAT(trace.echoes, ElementsAre(R"(orvCopy "g" "/")"));
  host.takeMessages();
}

TEST_F(HookClipboard, CopySelectionInsideACompound) {
  const Selection selected = select({"/group/d"}, {});
  EXPECT_EQ(traceOf([&] { hook().copySelection(selected.in(compound("/group"))); }),
            shown(R"(orvCopy "g" "/group" -sourceNode "d")"));
}

TEST_F(HookClipboard, PasteClipboard) {
  host.run("orvConnect g /a.result /b.value");
  ASSERT_TRUE(copy({"/b"}));
  bool done = false;
  EXPECT_EQ(editTraceOf([&] {
              done = hook().pasteClipboard({compound("/group"), false});
            }),
            edit(R"(orvPaste "g" "/group")"));
  EXPECT_TRUE(done);
  EXPECT_THAT(nodes("/group"), ElementsAre("d", "input", "output", "b"));

  EXPECT_EQ(editTraceOf([&] {
              hook().pasteClipboard({top(), true});
            }),
            edit(R"(orvPaste "g" "/" -duplicateSourceInputConnections)"));
  EXPECT_EQ(sourceOf("/b1.value"), "/a.result");
}

TEST_F(HookClipboard, PasteOfSomethingElseIsFalse) {
  orvlib::Clipboard::setText("a recipe");
  bool done = true;
  const Trace trace = traceOf([&] { done = hook().pasteClipboard({top(), false}); });
  EXPECT_FALSE(done);
  EXPECT_EQ(trace.journal.back(), R"(orvPaste "g" "/")");
  EXPECT_THAT(trace.steps, IsEmpty());
}

TEST_F(HookClipboard, CutSelectionCopiesThenRemovesOneByOne) {
  const Selection selected = select({"/c", "/a"}, {"note", "frame"});
  bool done = false;
  EXPECT_EQ(traceOf([&] { done = hook().cutSelection(selected.in(top())); }),
            shown(R"(orvCopy "g" "/" -sourceNode "{c,a}" -sourceAnnotation "{note,frame}")") +
                edit(R"(orvCompound "g" "/" -removeNode "c")") +
                edit(R"(orvCompound "g" "/" -removeNode "a")") +
                edit(R"(orvCompound "g" "/" -removeAnnotation "note")") +
                edit(R"(orvCompound "g" "/" -removeAnnotation "frame")"));
  EXPECT_TRUE(done);
  EXPECT_THAT(nodes("/"), ElementsAre("b", "list", "vec", "group"));
  EXPECT_THAT(annotations("/"), IsEmpty());

  EXPECT_TRUE(hook().pasteClipboard({top(), false}));
  EXPECT_THAT(nodes("/"), ElementsAre("b", "list", "vec", "group", "a", "c"));
}

/// The lists of a level get shorter with everything that is removed.
TEST_F(HookClipboard, CutSelectionTakesTheListsOfALevel) {
  const CompoundHandle level = top();
  EXPECT_TRUE(hook().cutSelection({level, &level->getChildNodes(), &level->getAnnotations()}));
  EXPECT_THAT(nodes("/"), IsEmpty());
  EXPECT_THAT(annotations("/"), IsEmpty());

  EXPECT_TRUE(hook().pasteClipboard({top(), false}));
  EXPECT_THAT(nodes("/"), ElementsAre("a", "b", "c", "list", "vec", "group"));
  EXPECT_THAT(annotations("/"), ElementsAre("frame", "note"));
}

TEST_F(HookClipboard, CutSelectionThatCannotCopyRemovesNothing) {
  replace("orvCopy", {.doIt = [](auto&, auto&) -> KStatus { return StatusFailure; }});
  const Selection selected = select({"/a"}, {"note"});
  const std::string before = stored();
  bool done = true;
  EXPECT_EQ(traceOf([&] { done = hook().cutSelection(selected.in(top())); }),
            failed(R"(orvCopy "g" "/" -sourceNode "a" -sourceAnnotation "note")"));
  EXPECT_FALSE(done);
  EXPECT_EQ(stored(), before);
}

TEST_F(HookClipboard, ACopyThatFailedAndGaveOneIsCutAllTheSame) {
  replaceByFailure("orvCopy");
  EXPECT_TRUE(copy({"/a"}));
  const Selection selected = select({"/a"}, {"note"});
  EXPECT_TRUE(hook().cutSelection(selected.in(top())));
  EXPECT_THAT(nodes("/"), ElementsAre("b", "c", "list", "vec", "group"));
  EXPECT_THAT(annotations("/"), ElementsAre("frame"));
}

TEST_F(HookClipboard, ACopyThatFailedAndGaveAnotherNumberIsFalse) {
  replaceByFailure("orvCopy");
  failureResult = 2;
  EXPECT_FALSE(copy({"/a"}));
}

TEST_F(HookClipboard, APasteThatFailedIsFalseUnlessItGaveOne) {
  replaceByFailure("orvPaste");
  EXPECT_TRUE(hook().pasteClipboard({top(), false}));
  failureResult = 2;
  EXPECT_FALSE(hook().pasteClipboard({top(), false}));
}

TEST_F(HookClipboard, CutSelectionIsTrueAlsoWhenARemovalFails) {
  replace("orvCompound", {.doIt = [](auto&, auto&) -> KStatus { return StatusFailure; }});
  const Selection selected = select({"/a"}, {"note"});
  EXPECT_TRUE(hook().cutSelection(selected.in(top())));
}

/// Takes over what a cut is made of, and notes it.
class OwnCut final : public orvVeskCommandHook {
 public:
  bool copySelection(const EditSelection& selection) override {
    calls.push_back("copy " + std::string(selection.parent->getName()));
    return copies;
  }
  void removeNode(const NodeHandle& node) override {
    calls.push_back("removeNode " + std::string(node->getName()));
  }
  void editAnnotation(unsigned int operation, const CompoundHandle& compound, const char* name,
                      const char* second, const char* third) override {
    calls.push_back("editAnnotation " + std::to_string(operation) + " " + compound->getName() +
                    " " + name + (second || third ? " more" : ""));
  }

  hosttest::Texts calls;
  bool copies = true;
};

TEST_F(HookClipboard, CutSelectionReachesOverrides) {
  OwnCut own;
  ASSERT_EQ(&hook(), static_cast<CommandHook*>(&own)) << "it installs itself";
  const Selection selected = select({"/b", "/a"}, {"note", "frame"});
  EXPECT_EQ(traceOf([&] { EXPECT_TRUE(hook().cutSelection(selected.in(top()))); }), Trace{});
  const std::string parent = top()->getName();
  EXPECT_THAT(own.calls, ElementsAre("copy " + parent, "removeNode b", "removeNode a",
                                     "editAnnotation 3 " + parent + " note",
                                     "editAnnotation 3 " + parent + " frame"));
  own.calls.clear();
  own.copies = false;
  EXPECT_FALSE(hook().cutSelection(selected.in(top())));
  EXPECT_THAT(own.calls, ElementsAre("copy " + parent));
}

// Change brackets.

TEST_F(HookClipboard, OpenAndCloseChangeBracketAreNotShownButKept) {
  EXPECT_EQ(traceOf([&] { hook().openChangeBracket(&graph); }),
            hiddenEdit(R"(orvChangeBracket "g" -open)"));
  EXPECT_TRUE(graph.activeChangeBracket());
  EXPECT_EQ(traceOf([&] { hook().closeChangeBracket(&graph); }),
            hiddenEdit(R"(orvChangeBracket "g" -close)"));
  EXPECT_FALSE(graph.activeChangeBracket());
}

TEST_F(HookClipboard, ChangeBracketsTakePartInUndoSuspension) {
  services().setUndoSuspended(true);
  EXPECT_EQ(traceOf([&] { hook().openChangeBracket(&graph); }),
            silent(R"(orvChangeBracket "g" -open)"));
  EXPECT_EQ(traceOf([&] { hook().closeChangeBracket(&graph); }),
            silent(R"(orvChangeBracket "g" -close)"));
  services().setUndoSuspended(false);
}

}  // namespace
