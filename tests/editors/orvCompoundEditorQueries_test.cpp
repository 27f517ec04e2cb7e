#include "tests/editors/EditorTesting.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;

const Texts kNotFound{"! A compound editor by that name was not found"};
const Texts kNoEditor{"! No compound editors found"};
const Texts kNotQuery{"! Invalid command flag for Query mode"};
const Texts kNeedsQuery{"! Command flag requires Query mode (-q)"};

class CompoundEditorQueries : public EditorTest {
 protected:
  CompoundEditorQueries() {
    host.run("orvCompound \"g\" \"/\" -addNode \"core::math::add\"");
    host.run("orvCompound \"g\" \"/\" -addStickyNote \"note\"");
  }

  void openWithSelection() {
    host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
    host.run("orvCompoundEditor -name \"a\" -selectNodes \"add\"");
  }

  std::string ask(const std::string& flags) { return host.run("orvCompoundEditor -q " + flags); }
};

TEST_F(CompoundEditorQueries, ListsTheEditorsThatAreThere) {
  EXPECT_EQ(ask("-listEditors"), "") << "also without any, and with no message";
  open("a");
  EXPECT_EQ(ask("-listEditors"), R"(["a"])");
  open("b");
  closeByUser("a");
  EXPECT_EQ(ask("-listEditors -dgContainer -name \"nothing\""), R"(["b"])")
      << "other flags are passed over";
}

TEST_F(CompoundEditorQueries, WithoutANameAnyEditorThatIsThereIsAsked) {
  EXPECT_EQ(badArgument("orvCompoundEditor -q"), kNoEditor);
  EXPECT_TRUE(editorRegistry.empty());
  openWithSelection();
  EXPECT_EQ(ask("-dgContainer"), "\"g\"");
  closeByUser("a");
  EXPECT_EQ(badArgument("orvCompoundEditor -q -dgContainer"), kNotFound);
  EXPECT_TRUE(editorRegistry.contains("")) << "the lookup leaves an entry";
}

TEST_F(CompoundEditorQueries, AnUnknownNameLeavesAnEntry) {
  EXPECT_EQ(badArgument("orvCompoundEditor -q -name \"a\" -dgContainer"), kNotFound);
  EXPECT_TRUE(editorRegistry.contains("a"));
  EXPECT_EQ(ask("-listEditors"), "");
}

TEST_F(CompoundEditorQueries, APanelThatTheUserClosedIsNotFound) {
  open("a");
  closeByUser("a");
  EXPECT_EQ(badArgument("orvCompoundEditor -q -name \"a\" -dgContainer"), kNotFound);
}

TEST_F(CompoundEditorQueries, NamesAreComparedLetterByLetter) {
  open("a");
  EXPECT_EQ(badArgument("orvCompoundEditor -q -name \"A\" -dgContainer"), kNotFound);
}

TEST_F(CompoundEditorQueries, ABlankEditorGivesAnEmptyText) {
  open("a");
  EXPECT_EQ(ask("-name \"a\" -dgContainer -nodeSelection"), R"([""])");
  EXPECT_EQ(ask("-name \"a\""), R"([""])");
}

TEST_F(CompoundEditorQueries, OneQuestionOfGraphOrCompoundIsAnsweredByAText) {
  openWithSelection();
  EXPECT_EQ(ask("-name \"a\" -dgContainer"), "\"g\"");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/\"");
}

TEST_F(CompoundEditorQueries, EverythingElseIsAListInAFixedOrder) {
  openWithSelection();
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), R"(["add"])");
  EXPECT_EQ(ask("-name \"a\" -currentCompound -dgContainer"), R"(["g","/"])");
  EXPECT_EQ(ask("-name \"a\" -annSelection -nodeSelection -currentCompound -dgContainer"),
            R"(["g","/","add"])");
}

TEST_F(CompoundEditorQueries, SelectedAnnotationsGoByTheirOwnName) {
  openWithSelection();
  host.run("orvCompoundEditor -name \"a\" -sendKey 65 " + std::to_string(Qt::ControlModifier));
  EXPECT_EQ(ask("-name \"a\" -annSelection"), R"(["note"])");
}

TEST_F(CompoundEditorQueries, WithoutAQuestionTheResultIsEmpty) {
  openWithSelection();
  EXPECT_EQ(ask("-name \"a\""), "");
}

TEST_F(CompoundEditorQueries, RefusesFlagsThatAreNoQuestions) {
  openWithSelection();
  for (const char* flag : {"-reload", "-edit", "-sendKey", "-title", "-runtimeHint"}) {
    EXPECT_EQ(badArgument("orvCompoundEditor -q -name \"a\" " + std::string(flag)), kNotQuery)
        << flag;
  }
}

TEST_F(CompoundEditorQueries, QuestionsNeedTheQueryMode) {
  for (const char* flag : {"-listEditors", "-dgContainer", "-annSelection"}) {
    EXPECT_EQ(badArgument("orvCompoundEditor " + std::string(flag)), kNeedsQuery) << flag;
  }
  EXPECT_TRUE(editorRegistry.empty());
}

}  // namespace
