// Random subgraphs come through the clipboard as they were.

#include <gmock/gmock.h>

#include <functional>
#include <regex>

#include "platform/ORV_1_0/PasteCommand.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/graph/storage/SelectionSeal.h"
#include "testPaths.h"
#include "tests/standalone/graph/commands/GraphInvariants.h"
#include "tests/standalone/graph/commands/RandomSubgraph.h"

namespace orvlib {
namespace {

/// The runtime, for all tests here: there are many graphs.
class PasteCommandRandom : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    registry = std::make_unique<RuntimeRegistry>();
    registry->load(VESK_SOURCE_DIR "/library");
    registry->makeCurrent();
  }
  static void TearDownTestSuite() { registry.reset(); }

  static inline std::unique_ptr<RuntimeRegistry> registry;
};

/// A paste, and what came of it.
class Pasted {
 public:
  Pasted(ContainerObject& graph, CompoundObject& level, FromOutside outside)
      : graph_(graph), level_(level), outside_(outside), before_(writeGraph(graph)) {
    for (const NodeObject* node : level.nodes().items()) formerNames_.insert(node->name());
    formerNotes_ = level.annotations().count();
    const std::string path = level.node()->fullPath();
    EXPECT_TRUE(command_.setParentCompound(&graph, path.c_str()));
    if (outside == FromOutside::Kept) command_.duplicateSourceInputConnections(true);
    done = command_.doit();
  }

  /// Of what has been added to the level.
  Facts facts() const {
    const auto nodes = added();
    std::vector<AnnotationObject*> notes;
    for (unsigned i = formerNotes_; i < level_.annotations().count(); ++i) {
      notes.push_back(level_.annotations().at(i));
    }
    return SubgraphFacts(nodes, notes, outside_).all();
  }

  std::vector<NodeObject*> added() const {
    std::vector<NodeObject*> nodes;
    for (auto i = static_cast<unsigned>(formerNames_.size()); i < level_.nodes().count(); ++i) {
      nodes.push_back(level_.nodes().at(i));
    }
    return nodes;
  }

  /// A name that was free is kept.
  void expectNames(const std::vector<std::string>& wanted) const {
    const auto nodes = added();
    ASSERT_EQ(nodes.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      const bool kept = nodes[i]->name() == wanted[i];
      const bool taken = formerNames_.contains(wanted[i]);
      EXPECT_FALSE(kept && taken) << wanted[i];
      // Another that is pasted may have been given the name.
      EXPECT_TRUE(kept || taken || level_.nodes().find(wanted[i])) << wanted[i];
    }
  }

  void expectReversible() {
    const std::string after = writeGraph(graph_);
    for (int times = 0; times < 2; ++times) {
      ASSERT_TRUE(command_.undo());
      ASSERT_EQ(writeGraph(graph_), before_);
      ASSERT_TRUE(command_.redo());
      ASSERT_EQ(writeGraph(graph_), after);
    }
  }

  void undo() {
    ASSERT_TRUE(command_.undo());
    ASSERT_EQ(writeGraph(graph_), before_);
  }

  bool done = false;

 private:
  ContainerObject& graph_;
  CompoundObject& level_;
  FromOutside outside_;
  std::string before_;
  std::set<std::string> formerNames_;
  unsigned formerNotes_ = 0;
  ORV_v1::PasteCommand command_;
};

/// The subgraph of one seed, on the clipboard, and pasted wherever it can be.
class RandomPaste {
 public:
  explicit RandomPaste(unsigned seed) : random_(seed) {
    for (const NodeObject* node : random_.nodes) names_.push_back(node->name());
    random_.copy();
  }

  void intoTheSameCompound(FromOutside outside) {
    check(random_.graph, *random_.level, outside, random_.facts(outside));
  }

  void intoAnotherCompound() {
    const Facts expected = random_.facts(FromOutside::Left);
    check(random_.graph, random_.anyLevel(), FromOutside::Left, expected);
  }

  void intoAnotherContainer() {
    ContainerObject other("standard");
    const Facts expected = random_.facts(FromOutside::Left);
    check(other, *other.top().compound(), FromOutside::Left, expected);
    EXPECT_EQ(other.top().compound()->nodes().count(), 0u);
  }

  void twice() {
    const Facts expected = random_.facts(FromOutside::Left);
    Pasted first(random_.graph, *random_.level, FromOutside::Left);
    ASSERT_TRUE(first.done);
    check(random_.graph, *random_.level, FromOutside::Left, expected);
    EXPECT_THAT(first.facts(), testing::ContainerEq(expected));
    first.undo();
  }

 private:
  void check(ContainerObject& graph, CompoundObject& level, FromOutside outside,
             const Facts& expected) {
    Pasted pasted(graph, level, outside);
    ASSERT_TRUE(pasted.done);
    EXPECT_THAT(pasted.facts(), testing::ContainerEq(expected));
    EXPECT_EQ(brokenRule(graph), "");
    pasted.expectNames(names_);
    pasted.expectReversible();
    EXPECT_THAT(pasted.facts(), testing::ContainerEq(expected));
    pasted.undo();
  }

  RandomSubgraph random_;
  std::vector<std::string> names_;
};

constexpr unsigned kSeedsATest = 50;

class PasteCommandRandomSeeds : public PasteCommandRandom,
                                public testing::WithParamInterface<unsigned> {
 protected:
  void forEachSeed(const std::function<void(RandomPaste&)>& work) {
    for (unsigned i = 0; i < kSeedsATest; ++i) {
      const unsigned seed = GetParam() * kSeedsATest + i;
      SCOPED_TRACE("seed " + std::to_string(seed));
      RandomPaste one(seed);
      work(one);
      if (HasFailure()) return;
    }
  }
};

TEST_P(PasteCommandRandomSeeds, GivesTheSameWhereverItIsPasted) {
  forEachSeed([](RandomPaste& one) {
    one.intoTheSameCompound(FromOutside::Left);
    one.intoTheSameCompound(FromOutside::Kept);
    one.intoAnotherCompound();
    one.intoAnotherContainer();
    one.twice();
  });
}

INSTANTIATE_TEST_SUITE_P(Seeds, PasteCommandRandomSeeds, testing::Range(0u, 20u));

TEST_F(PasteCommandRandom, SubgraphsHaveAllThatACopyCarries) {
  const std::map<std::string, std::regex> features = [] {
    std::map<std::string, std::regex> made;
    for (const char* pattern : {"^#0 is a 0 ",
                                "^#0 is a 1 ",
                                "is a 2 ",
                                "is a 3 ",
                                "^#\\d+/[^/]+/[^/]+ is a",
                                "[^.]+/.* -> ",
                                " -> #",
                                " <- #",
                                " <- /",
                                "\\.\\w+\\.\\w+ <- /",
                                "inside\\.\\w+ -> ",
                                "is a member",
                                " = ",
                                "^#\\d+ has the metadata",
                                "\\.\\w+ has the metadata",
                                "\\.\\w+\\.\\w+ has the metadata",
                                "as a compound has the metadata",
                                "note sticky has the metadata",
                                "^note backdrop",
                                "^#\\d+ backdrop",
                                "state 0",
                                "state 1",
                                "has the flags",
                                "is watched",
                                "would be watched",
                                "inside\\.\\w+ is watched",
                                "\\.\\w+\\.\\w+ is watched",
                                "record changes",
                                "limit 7",
                                "format fixed",
                                "format scientific",
                                "digits 3",
                                "watch point has the metadata",
                                "holds the state",
                                "comes from 'my::own'",
                                " shows "}) {
      made.emplace(pattern, pattern);
    }
    return made;
  }();
  std::map<std::string, unsigned> seen;
  std::size_t count = 0;
  for (unsigned seed = 0; seed < 100; ++seed) {
    const RandomSubgraph one(seed);
    const Facts facts = one.facts(FromOutside::Kept);
    count += facts.size();
    std::set<std::string> here;
    for (const std::string& fact : facts) {
      for (const auto& [pattern, expression] : features) {
        if (!here.contains(pattern) && std::regex_search(fact, expression)) here.insert(pattern);
      }
    }
    for (const std::string& pattern : here) ++seen[pattern];
  }
  EXPECT_GT(count, 100 * 200u);
  for (const auto& [pattern, expression] : features) EXPECT_GE(seen[pattern], 3u) << pattern;
}

class DamagedClipboard : public PasteCommandRandom {
 protected:
  /// Pastes a text into a graph that has something; it says false and nothing has happened, or what
  /// it pasted is a graph and can be taken back.
  bool paste(const std::string& text) {
    Clipboard::setText(text);
    const std::string before = writeGraph(target_.graph);
    const std::uint64_t revision = target_.graph.revision();
    Pasted pasted(target_.graph, *target_.levels.front(), FromOutside::Kept);
    EXPECT_EQ(brokenRule(target_.graph), "");
    if (pasted.done) {
      pasted.undo();
    } else {
      EXPECT_EQ(writeGraph(target_.graph), before);
      EXPECT_EQ(target_.graph.revision(), revision);
    }
    return pasted.done;
  }

  static std::string copied(unsigned seed) {
    RandomSubgraph(seed).copy();
    return Clipboard::text();
  }

  static std::string linesOf(const std::string& text) { return text.substr(text.find('\n') + 1); }

  /// Whether it is refused as it is, and how it goes when nobody can see that it was damaged.
  bool pasteDamaged(const std::string& lines, const std::string& whole) {
    const std::string seal = whole.substr(0, whole.size() - linesOf(whole).size());
    EXPECT_EQ(paste(seal + lines), lines == linesOf(whole));
    return paste(sealOf(lines) + lines);
  }

  RandomSubgraph target_{7};
};

TEST_F(DamagedClipboard, CutOffAnywherePastesNothing) {
  std::size_t bytes = 0;
  for (unsigned seed = 0; seed < 12; ++seed) {
    const std::string whole = copied(seed);
    bytes += whole.size();
    for (std::size_t length = 0; length < whole.size(); ++length) {
      ASSERT_FALSE(paste(whole.substr(0, length))) << length;
      ASSERT_FALSE(HasFailure()) << length;
    }
    const std::string lines = linesOf(whole);
    for (std::size_t length = 0; length < lines.size(); ++length) {
      const std::string cut = lines.substr(0, length);
      ASSERT_FALSE(paste(sealOf(cut) + cut)) << length;
      ASSERT_FALSE(HasFailure()) << length;
    }
    EXPECT_TRUE(paste(whole));
  }
  EXPECT_GT(bytes, 20000u);
}

TEST_F(DamagedClipboard, WithAByteChangedPastesNothingAndUnseenNothingOrAGraph) {
  std::mt19937 random(1);
  unsigned refused = 0;
  unsigned done = 0;
  for (unsigned seed = 0; seed < 40; ++seed) {
    const std::string whole = copied(seed);
    for (int i = 0; i < 50; ++i) {
      std::string lines = linesOf(whole);
      lines[random() % lines.size()] ^= static_cast<char>(1u << (random() % 8));
      ++(pasteDamaged(lines, whole) ? done : refused);
      ASSERT_FALSE(HasFailure()) << lines;
    }
  }
  EXPECT_GT(refused, 100u);
  EXPECT_GT(done, 100u);
}

TEST_F(DamagedClipboard, WithLinesGoneOrExchangedPastesNothingAndUnseenNothingOrAGraph) {
  std::mt19937 random(2);
  for (unsigned seed = 0; seed < 40; ++seed) {
    std::vector<std::string> lines;
    const std::string whole = copied(seed);
    const std::string all = linesOf(whole);
    for (std::size_t at = 0, end; at < all.size(); at = end) {
      end = all.find('\n', at) + 1;
      lines.push_back(all.substr(at, end - at));
    }
    for (int i = 0; i < 50; ++i) {
      std::vector<std::string> damaged = lines;
      std::swap(damaged[random() % lines.size()], damaged[random() % lines.size()]);
      if (random() % 2) damaged[random() % lines.size()].clear();
      std::string text;
      for (const std::string& line : damaged) text += line;
      pasteDamaged(text, whole);
      ASSERT_FALSE(HasFailure()) << text;
    }
  }
}

}  // namespace
}  // namespace orvlib
