#include "platform/OpenVesk/KPxCommand.h"

#include <gtest/gtest.h>

#include "standalone/host/engine/HostAccess.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;

/// Only what a command must have; everything else is the host's default.
class PlainCommand : public KPxCommand {
 public:
  KStatus doIt(const KArgList&) override { return StatusSuccess; }
};

KStringArray arrayOf(std::initializer_list<const char*> texts) {
  KStringArray array;
  for (const char* text : texts) array.append(text);
  return array;
}

/// The result, as JSON, of a command that does this.
std::string resultOf(const std::function<void()>& work) {
  ProbeHost host;
  addProbe(host, "probe", {.doIt = [&](KPxCommand&, const KArgList&) {
             work();
             return KStatus();
           }});
  return host.run("probe");
}

TEST(KPxCommand, RefusesToUndoAndRedoByDefault) {
  PlainCommand command;
  EXPECT_EQ(command.undoIt().statusCode(), StatusFailure);
  EXPECT_EQ(command.redoIt().statusCode(), StatusFailure);
}

TEST(KPxCommand, IsNotUndoableByDefault) { EXPECT_FALSE(PlainCommand().isUndoable()); }

TEST(KPxCommand, HasNoSyntaxWhenTheHostDidNotCreateIt) {
  PlainCommand command;
  EXPECT_FALSE(command.hasSyntax());
  EXPECT_TRUE(HostAccess::data(command.syntax()).flags().empty());
}

TEST(KPxCommand, HasTheSyntaxThatWasRegisteredWithIt) {
  KSyntax syntax;
  syntax.addFlag("-a", "-all");
  ProbeHost host;
  bool hasSyntax = false;
  std::string flag;
  addProbe(host, "probe",
           {.doIt =
                [&](KPxCommand& command, const KArgList&) {
                  hasSyntax = command.hasSyntax();
                  flag = HostAccess::data(command.syntax()).flags().at(0).longName;
                  return KStatus();
                }},
           syntax);
  host.run("probe");
  EXPECT_TRUE(hasSyntax);
  EXPECT_EQ(flag, "-all");
}

TEST(CommandResult, IsNothingUnlessItIsSet) {
  EXPECT_EQ(resultOf([] {}), "");
}

TEST(CommandResult, TheOverloadChoosesTheType) {
  EXPECT_EQ(resultOf([] { KPxCommand::setResult(true); }), "true");
  EXPECT_EQ(resultOf([] { KPxCommand::setResult(7u); }), "7");
  EXPECT_EQ(resultOf([] { KPxCommand::setResult("text"); }), "\"text\"");
  EXPECT_EQ(resultOf([] { KPxCommand::setResult(KString("text")); }), "\"text\"");
  EXPECT_EQ(resultOf([] { KPxCommand::setResult(arrayOf({"a", "b"})); }), R"(["a","b"])");
}

TEST(CommandResult, SettingReplacesWhatWasSet) {
  EXPECT_EQ(resultOf([] {
              KPxCommand::setResult("text");
              KPxCommand::setResult(false);
            }),
            "false");
}

TEST(CommandResult, ANullTextIsAnEmptyOne) {
  EXPECT_EQ(resultOf([] { KPxCommand::setResult(static_cast<const char*>(nullptr)); }), "\"\"");
}

TEST(CommandResult, ClearingLeavesNothing) {
  EXPECT_EQ(resultOf([] {
              KPxCommand::setResult("text");
              KPxCommand::clearResult();
            }),
            "");
}

TEST(CommandResult, AppendingToNothingBeginsAnArray) {
  EXPECT_EQ(resultOf([] { KPxCommand::appendToResult("a"); }), R"(["a"])");
  EXPECT_EQ(resultOf([] { KPxCommand::appendToResult(KString("a")); }), R"(["a"])");
  EXPECT_EQ(resultOf([] { KPxCommand::appendToResult(arrayOf({"a", "b"})); }), R"(["a","b"])");
}

TEST(CommandResult, AppendingAnEmptyArrayToNothingGivesAnEmptyArray) {
  EXPECT_EQ(resultOf([] { KPxCommand::appendToResult(KStringArray()); }), "[]");
}

TEST(CommandResult, AppendingToATextMakesItTheFirstElement) {
  EXPECT_EQ(resultOf([] {
              KPxCommand::setResult("a");
              KPxCommand::appendToResult("b");
            }),
            R"(["a","b"])");
}

TEST(CommandResult, AppendingToAnArrayAddsToItsEnd) {
  EXPECT_EQ(resultOf([] {
              KPxCommand::setResult(arrayOf({"a"}));
              KPxCommand::appendToResult(arrayOf({"b", "c"}));
              KPxCommand::appendToResult("");
            }),
            R"(["a","b","c",""])");
}

TEST(CommandResult, AppendingToABoolMakesItAText) {
  EXPECT_EQ(resultOf([] {
              KPxCommand::setResult(true);
              KPxCommand::appendToResult("b");
            }),
            R"(["true","b"])");
}

TEST(CommandResult, AppendingAfterClearingBeginsAnew) {
  EXPECT_EQ(resultOf([] {
              KPxCommand::appendToResult("a");
              KPxCommand::clearResult();
              KPxCommand::appendToResult("b");
            }),
            R"(["b"])");
}

TEST(CommandResult, SettingOutsideACommandDoesNothing) {
  ProbeHost host;
  KPxCommand::setResult("text");
  KPxCommand::appendToResult("text");
  KPxCommand::clearResult();
  EXPECT_EQ(host.run("edit"), "");
}

}  // namespace
