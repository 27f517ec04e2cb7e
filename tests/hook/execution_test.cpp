#include "hook/execution.h"

#include "platform/ORV_1_0/Compound.h"
#include "tests/hook/HookTesting.h"
#include "tests/hook/LibraryOperation.h"
#include "tests/support/Latin1Locale.h"

namespace {

/// The names by which nodes were looked up.
hosttest::Texts lookedUp;

}  // namespace

/// Comes ahead of the library's own: no node has a name that would tell how it was written.
ORV_v1::AddRefWrapper<ORV_v1::Node> ORV_v1::NodeList::operator[](const char* name) const {
  lookedUp.emplace_back(name ? name : "null");
  static const auto own = libraryOperation<AddRefWrapper<Node>, const NodeList*, const char*>(
      "_ZNK6ORV_v18NodeListixEPKc");
  return own(this, name);
}

namespace {

using vesk::ResultValue;

/// Lines of a command `probe` that ends as the test says. The forms are those compiled into the
/// test program, with a flag of their own for undo.
class Execution : public HookTest {
 protected:
  Execution() {
    addProbe(host, "probe", {.doIt = [this](auto&, auto&) { return end(); }, .undoable = true});
  }
  ~Execution() override { hookUndoEnabled = true; }

  /// What `runLineForSuccess` makes of that end.
  bool success(KStatusCode status, ResultValue result) {
    arrange(status, std::move(result));
    return runLineForSuccess(CommandLine("probe"));
  }

  /// The name of the node that `runLineForNode` makes of that end; "null" when it gives none.
  std::string nodeOf(KStatusCode status, ResultValue result) {
    arrange(status, std::move(result));
    const NodeHandle found = runLineForNode(CommandLine("probe"), top());
    return found ? found->getName() : "null";
  }

 private:
  void arrange(KStatusCode status, ResultValue result) {
    status_ = status;
    result_ = std::move(result);
  }

  KStatus end() {
    *host.session().engine().runningResult() = result_;
    return status_;
  }

  KStatusCode status_ = StatusSuccess;
  ResultValue result_;
};

TEST_F(Execution, SuccessIsTheStatusOfALineWithoutAResult) {
  EXPECT_TRUE(success(StatusSuccess, {}));
  EXPECT_FALSE(success(StatusFailure, {}));
  EXPECT_FALSE(success(StatusBadArgument, {}));
}

TEST_F(Execution, AFailedLineThatGaveOneIsASuccess) {
  EXPECT_TRUE(success(StatusFailure, 1));
  EXPECT_TRUE(success(StatusFailure, true)) << "what reads as the integer 1";
  EXPECT_TRUE(success(StatusBadArgument, 1u));
}

TEST_F(Execution, AFailedLineThatGaveSomethingElseIsNone) {
  for (const ResultValue& result :
       {ResultValue(0), ResultValue(2), ResultValue(-1), ResultValue(false), ResultValue(2u),
        ResultValue(1.0), ResultValue(std::string("1")), ResultValue(Texts{"1"})}) {
    EXPECT_FALSE(success(StatusFailure, result)) << vesk::toJson(result);
  }
}

TEST_F(Execution, ALineThatWorkedIsASuccessWhateverItGave) {
  for (const ResultValue& result :
       {ResultValue(0), ResultValue(1), ResultValue(false), ResultValue(0u), ResultValue(0.0),
        ResultValue(std::string()), ResultValue(Texts{})}) {
    EXPECT_TRUE(success(StatusSuccess, result)) << vesk::toJson(result);
  }
}

TEST_F(Execution, ANodeIsFoundByTheNameThatTheLineGave) {
  EXPECT_EQ(nodeOf(StatusSuccess, std::string("b")), "b");
}

TEST_F(Execution, ANodeIsFoundByTheFirstNameOfAList) {
  EXPECT_EQ(nodeOf(StatusSuccess, Texts{"c", "a"}), "c");
}

TEST_F(Execution, AnEmptyListGivesNoNode) { EXPECT_EQ(nodeOf(StatusSuccess, Texts{}), "null"); }

TEST_F(Execution, NoResultGivesNoNode) { EXPECT_EQ(nodeOf(StatusSuccess, {}), "null"); }

TEST_F(Execution, AResultThatIsNoTextGivesNoNode) {
  for (const ResultValue& result :
       {ResultValue(1), ResultValue(true), ResultValue(1u), ResultValue(1.0)}) {
    EXPECT_EQ(nodeOf(StatusSuccess, result), "null") << vesk::toJson(result);
  }
}

TEST_F(Execution, AnUnknownNameGivesNoNode) {
  for (const std::string name : {"nobody", "", "/a", "d", "B"}) {
    EXPECT_EQ(nodeOf(StatusSuccess, name), "null") << name;
  }
}

TEST_F(Execution, ANodeIsLookedUpByUtf8WhateverTheLocale) {
  const hosttest::Latin1Locale locale;
  for (const ResultValue& result :
       {ResultValue(std::string("Größe 数据")), ResultValue(Texts{"Größe 数据", "b"})}) {
    lookedUp.clear();
    EXPECT_EQ(nodeOf(StatusSuccess, result), "null");
    EXPECT_THAT(lookedUp, testing::ElementsAre("Größe 数据"));
  }
}

TEST_F(Execution, ANodeIsFoundAlsoAfterAFailure) {
  EXPECT_EQ(nodeOf(StatusFailure, std::string("b")), "b");
}

TEST_F(Execution, LinesAreShownAndKeptForUndo) {
  const CommandLine line("probe");
  EXPECT_EQ(traceOf([&] { EXPECT_TRUE(runLine(line)); }), edit("probe"));
  EXPECT_EQ(traceOf([&] { runLineForSuccess(line); }), edit("probe"));
  EXPECT_EQ(traceOf([&] { runLineForNode(line, top()); }), edit("probe"));
  EXPECT_EQ(traceOf([&] { runBracketLine(line); }), hiddenEdit("probe"));
}

TEST_F(Execution, SilentLinesAreNeither) {
  EXPECT_EQ(traceOf([&] { runSilently("probe"); }), silent("probe"));
  KCommandResult result;
  EXPECT_EQ(traceOf([&] { EXPECT_TRUE(runSilently("probe", result)); }), silent("probe"));
}

TEST_F(Execution, WhileUndoIsOffNoLineIsKept) {
  hookUndoEnabled = false;
  const CommandLine line("probe");
  EXPECT_EQ(traceOf([&] { runLine(line); }), unrecorded("probe"));
  EXPECT_EQ(traceOf([&] { runLineForSuccess(line); }), unrecorded("probe"));
  EXPECT_EQ(traceOf([&] { runLineForNode(line, top()); }), unrecorded("probe"));
  EXPECT_EQ(traceOf([&] { runBracketLine(line); }), silent("probe"));
}

TEST_F(Execution, TheStatusOfALineIsHandedBack) {
  success(StatusBadArgument, {});
  EXPECT_EQ(runLine(CommandLine("probe")).statusCode(), StatusBadArgument);
  KCommandResult result;
  EXPECT_EQ(runSilently("probe", result).statusCode(), StatusBadArgument);
}

}  // namespace
