#include "standalone/workspace/WorkspaceFile.h"

#include <gmock/gmock.h>

#include "tests/support/TemporaryFiles.h"

namespace vesk {
namespace {

WorkspaceState example() {
  PanelSettings panel;
  panel.name = "say \"hi\" \u7a97\u53e3";
  panel.label = "A\nlabel";
  panel.uiScript = "echo \"\\\"\"";
  panel.requiredPlugin = "some";
  panel.pluginPath = "/a/some.so";
  panel.initialWidth = 1024;
  panel.initialHeight = 600;
  panel.retain = false;
  panel.deleteLater = false;
  panel.loadImmediately = false;
  panel.floating = true;
  panel.visible = false;
  return {QByteArray("\0\1geometry", 10), QByteArray("\xff\xfe", 2), {panel}};
}

TEST(WorkspaceFile, WhatIsWrittenReadsBackTheSame) {
  const hosttest::TemporaryFiles files;
  const std::string text = workspaceText(example());
  std::string reason = "none";
  const auto state = readWorkspaceFile(files.write("w.json", text), reason);
  ASSERT_TRUE(state) << reason;
  EXPECT_EQ(reason, "");
  EXPECT_EQ(state->geometry, example().geometry);
  EXPECT_EQ(state->arrangement, example().arrangement);
  EXPECT_EQ(workspaceText(*state), text);
  EXPECT_EQ(state->panels.at(0).name, example().panels[0].name);
}

TEST(WorkspaceFile, OneThatIsMissingGivesNothingAndNoReason) {
  const hosttest::TemporaryFiles files;
  std::string reason = "none";
  EXPECT_FALSE(readWorkspaceFile(files.path("absent"), reason));
  EXPECT_EQ(reason, "");
}

class DamagedWorkspace : public ::testing::Test {
 protected:
  /// What is said of a file with one place of a good one changed.
  std::string reasonFor(const std::string& place, const std::string& instead) {
    std::string text = workspaceText(example());
    const std::size_t at = text.find(place);
    EXPECT_NE(at, text.npos) << place;
    text.replace(at, place.size(), instead);
    return reasonForText(text);
  }

  std::string reasonForText(const std::string& text) {
    std::string reason;
    EXPECT_FALSE(readWorkspaceFile(files_.write("w.json", text), reason)) << text;
    return reason;
  }

  hosttest::TemporaryFiles files_;
};

TEST_F(DamagedWorkspace, IsToldWithWhatIsWrong) {
  EXPECT_NE(reasonForText("{"), "");
  EXPECT_NE(reasonForText("[]"), "");
  EXPECT_EQ(reasonForText("{}"), "its version is not 1");
  EXPECT_EQ(reasonFor("\"version\": 1", "\"version\": 2"), "its version is not 1");
  EXPECT_EQ(reasonFor("\"panels\"", "\"other\""), "it has no list \"panels\"");
  EXPECT_EQ(reasonFor("\"label\"", "\"other\""), "a panel has no text \"label\"");
  EXPECT_EQ(reasonFor("1024", "0"), "a panel has no size \"initialWidth\"");
  EXPECT_EQ(reasonFor("1024", "1e9"), "a panel has no size \"initialWidth\"");
  EXPECT_EQ(reasonFor("\"retain\": false", "\"retain\": 0"),
            "a panel has no truth value \"retain\"");
}

TEST_F(DamagedWorkspace, TwoPanelsOfOneNameOrNoneAreDamage) {
  WorkspaceState state = example();
  state.panels[0].name = "p";
  state.panels.push_back(state.panels[0]);
  EXPECT_EQ(reasonForText(workspaceText(state)), "two panels are named \"p\"");
  state.panels[0].name = "";
  EXPECT_EQ(reasonForText(workspaceText(state)), "a panel has an empty name");
}

}  // namespace
}  // namespace vesk
