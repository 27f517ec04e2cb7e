// Lines with many flags at random, also while a change bracket is open: undo and redo give the
// graph back byte for byte, however often.

#include "plugin/orvChangeBracketCmd.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"
#include "tests/commands/compound/RandomLines.h"
#include "tests/support/TemporaryFiles.h"

namespace {

/// A graph with compounds in one another, a reference to a published compound, connections of each
/// kind, and what the lines have made of it so far.
class CompoundRandomLines : public CompoundEditTest, public testing::WithParamInterface<unsigned> {
 protected:
  CompoundRandomLines() : random_(graph, GetParam()), copy_(host.graph("copy")) {
    host.session().registry().add({"orvChangeBracket",
                                   orvChangeBracketCmd::creator,
                                   orvChangeBracketCmd::createSyntax(),
                                   nullptr,
                                   {}});
    makeInner();
    makeGroup();
    makeTop();
    makeReference();
    host.session().undoQueue().clear();
    texts_ = {stored()};
  }

  /// Some edits, or a bracket that opens or closes.
  void runAny() {
    if (GetParam() % 2 != 0 && random_.below(4) == 0) {
      const char* flag = random_.below(5) < 2 ? " -close" : " -open";
      runStep("orvChangeBracket g " + random_.anyLevel() + flag);
    }
    const std::string path = random_.anyLevel();
    runStep(line(path, random_.flags(path)));
  }

  /// All the way, and then to and fro.
  void walk() {
    const std::size_t end = texts_.size() - 1;
    std::size_t at = end;
    const auto go = [&](const char* command, std::size_t to) {
      host.run(command);
      EXPECT_EQ(stored(), texts_[at = to]) << command << " to " << to << told();
    };
    const auto back = [&] { go("undo", at - 1); };
    const auto forth = [&] { go("redo", at + 1); };
    for (int round = 0; round < 2; ++round) {
      while (at > 0 && !HasFailure()) back();
      while (at < end && !HasFailure()) forth();
    }
    for (int step = 0; step < 20 && end > 0 && !HasFailure(); ++step) {
      at == end || (at > 0 && random_.below(2)) ? back() : forth();
    }
    host.takeMessages();
  }

  /// What is stored can be read, and is the same graph.
  void expectReadable() {
    const std::string text = stored();
    auto& copy = static_cast<orvlib::ContainerObject&>(copy_);
    const auto error = orvlib::readGraph(text, copy);
    EXPECT_FALSE(error) << error->line << ": " << error->reason << '\n' << text << told();
    EXPECT_EQ(orvlib::writeGraph(copy), text) << told();
  }

 private:
  void makeInner() {
    run("/", "-create group");
    run("/group", "-create inner");
    run("/group/inner",
        "-createInputPort p float -createOutputPort q float -addStatePorts s t float");
    run("/group/inner", "-addNode core::math::negate");
    connect("/group/inner.p", "/group/inner/negate.value");
    connect("/group/inner/negate.result", "/group/inner.q");
  }
  void makeGroup() {
    run("/group", "-createInputPort size float -createInputPort tint color3");
    run("/group", "-createOutputPort out float -addIONode true -addIONode false");
    run("/group", "-movePortToIONode size input");
    run("/group", "-movePortToIONode out output");
    run("/group", "-addNode core::math::add -addBackdrop frame -addStickyNote text");
    connect("/group.size", "/group/add.a");
    connect("/group/add.result", "/group/inner.p");
    connect("/group/inner.q", "/group.out");
  }
  void makeTop() {
    run("/", "-createInputPort in float -createOutputPort out color3 -addBackdrop frame");
    run("/", "-addNode core::math::add -addNode core::color::mix3 -addNode core::array::build");
    connect("/.in", "/add.a");
    connect("/add.result", "/group.size");
    connect("/add.result", "/mix3.a.r");
    connect("/mix3.result", "/group.tint");
    connect("/add.result", "/build.elements");
    connect("/group.out", "/build.elements");
  }
  void makeReference() {
    runtimes_.setPublishedFolder(files_.path("published"));
    EXPECT_THAT(runtimes_.load(VESK_SOURCE_DIR "/library"), testing::IsEmpty());
    runtimes_.makeCurrent();
    run("/", "-create shared");
    run("/shared", "-createInputPort a float -create deep");
    run("/shared", "-addNode core::math::negate -connectTo a");
    EXPECT_EQ(run("/shared", "-publish shared \"\" \"Text.\" false"), "true");
    EXPECT_EQ(run("/shared", "-setIsReferenced true"), "true");
    connect("/add.result", "/shared.a");
  }

  /// Runs the line and notes what is stored now. What a line did that failed later stays: all
  /// begins anew then.
  void runStep(const std::string& text) {
    const std::size_t steps = host.steps().size();
    const bool works = host.status(text) == StatusSuccess;
    host.takeMessages();
    lines_ += '\n' + text;
    if (works && host.steps().size() > steps) {
      texts_.push_back(stored());
    } else if (works) {
      EXPECT_EQ(stored(), texts_.back()) << "a line without a step" << told();
    } else if (stored() != texts_.back()) {
      host.session().undoQueue().clear();
      texts_ = {stored()};
    }
  }

  std::string told() const { return "\nafter the lines" + lines_; }

  hosttest::TemporaryFiles files_;
  orvlib::RuntimeRegistry runtimes_;
  RandomLines random_;
  ORV_v1::Container& copy_;
  std::vector<std::string> texts_;  ///< the stored form before the first step and after each
  std::string lines_;
};

TEST_P(CompoundRandomLines, ComeAndGoByteForByte) {
  for (int count = 0; count < 12; ++count) runAny();
  expectReadable();
  walk();
  expectReadable();
}

INSTANTIATE_TEST_SUITE_P(Seeds, CompoundRandomLines, testing::Range(1u, 61u));

}  // namespace
