#include <random>

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using vesk::testing::LineHost;
using vesk::testing::stateOf;

/// Makes lines of all kinds that the scene allows at the moment.
class RandomLines {
 public:
  explicit RandomLines(unsigned seed) : random_(seed) {}

  std::string next(const Scene& scene) {
    constexpr const char* kModes[] = {"select ", "select -add ", "select -toggle ",
                                      "select -deselect "};
    constexpr const char* kTypes[] = {"group", "locator", "note"};
    switch (scene.size() == 0 ? 0 : below(6)) {
      case 0:
      case 1:
        return std::string("createNode ") + kTypes[below(3)] + " -name " + vesk::quoted(name());
      case 2:
        return "rename " + any(scene) + " " + vesk::quoted(name());
      case 3:
        return scene.selection().size() > 0 && below(8) == 0 ? "delete" : "delete " + any(scene);
      default:
        return kModes[below(4)] + any(scene) + " " + any(scene);
    }
  }

 private:
  unsigned below(unsigned end) { return random_() % end; }
  std::string name() { return std::string(1, static_cast<char>('a' + below(3))) + " größer"; }
  std::string any(const Scene& scene) {
    auto at = scene.nodes().begin();
    std::advance(at, below(static_cast<unsigned>(scene.size())));
    return at->second->name();
  }

  std::mt19937 random_;
};

TEST(SceneCommandSweep, TwoThousandRandomEditsGoAllTheWayBackAndForward) {
  LineHost host;
  const auto state = [&host] { return stateOf(host.scene()); };
  RandomLines lines(20250000);
  std::vector<std::string> states{state()};
  for (int i = 0; i < 2000; ++i) {
    const std::string line = lines.next(host.scene());
    host.run(line);
    states.push_back(state());
    ASSERT_FALSE(::testing::Test::HasFailure()) << line;
  }
  for (std::size_t i = states.size() - 1; i > 0; --i) {
    host.run("undo");
    ASSERT_EQ(state(), states[i - 1]) << "undo of edit " << i;
  }
  for (std::size_t i = 1; i < states.size(); ++i) {
    host.run("redo");
    ASSERT_EQ(state(), states[i]) << "redo of edit " << i;
  }
}

}  // namespace
}  // namespace vesk
