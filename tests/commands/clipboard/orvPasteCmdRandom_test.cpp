// Random lines of copies, pastes and watch points: undo goes back through each stored form, and
// redo forward again.

#include <random>

#include "tests/commands/clipboard/ClipboardTesting.h"

namespace {

class RandomClipboardLines : public ClipboardTest, public testing::WithParamInterface<unsigned> {
 protected:
  unsigned below(unsigned count) { return static_cast<unsigned>(random_() % count); }

  std::string any(const Texts& texts) {
    return texts.empty() ? "nobody" : texts[below(static_cast<unsigned>(texts.size()))];
  }

  /// The path of a level: the top one, or one of its compounds.
  std::string anyLevel() {
    Texts levels = {"/"};
    for (const std::string& name : nodes("/")) {
      if (compound("/" + name)) levels.push_back("/" + name);
    }
    return any(levels);
  }

  std::string anyLine() {
    const std::string level = anyLevel();
    const std::string names = "{" + any(nodes(level)) + "," + any(nodes(level)) + "}";
    switch (below(6)) {
      case 0:
        return "orvCopy g " + quoted(level) + " -src " + quoted(names) + " -san " +
               any(annotations(level));
      case 1:
      case 2:
        return "orvPaste g " + quoted(level) + (below(2) == 0 ? " -dsc" : "");
      case 3:
        return watchLine(level, below(2) == 0 ? " -create" : " -remove");
      case 4:
        return watchLine(level, " -create -enable false -spv limit " + std::to_string(below(5)));
      default:
        return watchLine(level, " -smd color red -spv record changes");
    }
  }

 private:
  static std::string quoted(const std::string& text) { return "\"" + text + "\""; }

  std::string watchLine(const std::string& level, const std::string& flags) {
    const std::string node = (level == "/" ? "" : level) + "/" + any(nodes(level));
    return "orvWatchPoint g " + quoted(node) + (below(2) == 0 ? " value" : " result") + flags;
  }

  std::mt19937 random_{GetParam()};
};

TEST_P(RandomClipboardLines, CanAllBeUndoneAndRedone) {
  host.run("orvCopy g \"/\" -src \"{a,b}\" -san frame");
  Texts forms = {stored()};
  for (int i = 0; i < 60; ++i) {
    const std::string line = anyLine();
    const std::size_t steps = host.steps().size();
    host.status(line);
    host.takeMessages();
    if (host.steps().size() > steps) forms.push_back(stored());
  }
  EXPECT_GT(forms.size(), 10u);
  for (std::size_t i = forms.size() - 1; i > 0; --i) {
    undo();
    ASSERT_EQ(stored(), forms[i - 1]) << "undo of step " << i;
  }
  for (std::size_t i = 1; i < forms.size(); ++i) {
    redo();
    ASSERT_EQ(stored(), forms[i]) << "redo of step " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomClipboardLines, testing::Range(1u, 21u));

}  // namespace
