#include "standalone/graph/clipboard/Clipboard.h"

#include <gtest/gtest.h>

#include "platform/ORV_1_0/CopyCommand.h"

namespace orvlib {
namespace {

struct TrialClipboard : SystemClipboard {
  bool setText(const std::string& text) override {
    if (refuses) return false;
    held = text;
    return true;
  }
  std::string text() const override { return held; }

  std::string held;
  bool refuses = false;
};

class ClipboardTest : public testing::Test {
 protected:
  ClipboardTest() {
    Clipboard::setText("own");
    Clipboard::install(&system_);
  }
  ~ClipboardTest() override {
    Clipboard::install(nullptr);
    Clipboard::setLocal(false);
  }

  TrialClipboard system_;
};

TEST_F(ClipboardTest, UsesTheSystemsWhenThereIsOne) {
  EXPECT_TRUE(Clipboard::setText("shared"));
  EXPECT_EQ(system_.held, "shared");
  EXPECT_EQ(Clipboard::text(), "shared");
}

TEST_F(ClipboardTest, InLocalModeItUsesItsOwn) {
  ORV_v1::CopyPasteCommandBase::setUseLocalClipboard(true);
  EXPECT_EQ(Clipboard::text(), "own");
  EXPECT_TRUE(Clipboard::setText("mine"));
  EXPECT_EQ(system_.held, "");
  EXPECT_EQ(Clipboard::text(), "mine");
}

TEST_F(ClipboardTest, WithoutASystemsItUsesItsOwn) {
  Clipboard::install(nullptr);
  EXPECT_EQ(Clipboard::text(), "own");
}

TEST_F(ClipboardTest, TellsThatTheSystemsRefused) {
  system_.refuses = true;
  EXPECT_FALSE(Clipboard::setText("shared"));
}

}  // namespace
}  // namespace orvlib
