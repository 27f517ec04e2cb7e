#pragma once

#include "tests/commands/clipboard/ClipboardTesting.h"

/// Keeps its object on the undo queue although the paste failed.
class KeptPaste final : public orvPasteCmd {
 public:
  static KPxCommand* creator() { return new KeptPaste; }
  KStatus doIt(const KArgList& args) override {
    last = this;
    orvPasteCmd::doIt(args);
    return StatusSuccess;
  }
  static inline orvPasteCmd* last = nullptr;
};

class PasteTest : public ClipboardTest {
 protected:
  void copy(const std::string& flags) { host.run("orvCopy g \"/\" " + flags); }
  std::string paste(const std::string& path, const std::string& flags = "") {
    return host.run("orvPaste g \"" + path + "\" " + flags);
  }

  /// Runs `orvPaste ARGUMENTS`, which must fail with this status and change nothing.
  Texts failure(const std::string& arguments, KStatusCode status = StatusFailure) {
    const std::string before = stored();
    const std::size_t steps = host.steps().size();
    EXPECT_EQ(host.status("orvPaste " + arguments), status) << arguments;
    EXPECT_EQ(stored(), before) << arguments;
    EXPECT_THAT(host.steps(), testing::SizeIs(steps));
    EXPECT_FALSE(graph.activeChangeBracket());
    return host.takeMessages();
  }
};
