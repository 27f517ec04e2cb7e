// What editors do through the hook is kept by the host: as lines that do the same again in another
// process, and as steps that go back and forth.

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <optional>
#include <regex>
#include <set>

#include "standalone/vesk/TextDiff.h"
#include "testPaths.h"
#include "tests/hook/road/Calls.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

constexpr unsigned kRuns = 5;
constexpr unsigned kCallsOfRun = 2000;

/// Neither so few that there is nothing to do, nor so many that it takes long.
constexpr std::size_t kFewNodes = 8;
constexpr std::size_t kManyNodes = 90;

/// Edits that most objects refuse, and how often each is to be made all the same in a run.
constexpr const char* kOftenInVain[] = {
    "deletePort of a member", "deletePort of a node", "deletePort of a compound",
    "editWatchPoint 0",       "editWatchPoint 1",     "editWatchPoint 2",
};
constexpr unsigned kLeastWorked = 5;

std::vector<Call> allCalls() {
  std::vector<Call> all;
  for (const auto calls : {nodeCalls(), portCalls(), attachedCalls(), clipboardAndServiceCalls()}) {
    all.insert(all.end(), calls.begin(), calls.end());
  }
  return all;
}

std::vector<Call> undoneCalls() {
  std::vector<Call> calls = allCalls();
  std::erase_if(calls, [](const Call& call) { return call.notUndone != nullptr; });
  return calls;
}

/// The operations of an interface, without its destructor.
std::set<std::string> operationsOf(const std::string& header) {
  const std::string text = readWholeFile(VESK_SOURCE_DIR "/src/platform/orvUI_1_0/" + header);
  const std::regex operation("virtual [A-Za-z]+ ([a-zA-Z]+)\\(");
  std::set<std::string> names;
  for (std::sregex_iterator at(text.begin(), text.end(), operation), end; at != end; ++at) {
    names.insert((*at)[1]);
  }
  return names;
}

TEST(TableOfCalls, HasEveryOperationThatIsDocumented) {
  std::set<std::string> called;
  for (const Call& call : allCalls())
    called.insert(std::string(call.name, std::strcspn(call.name, " ")));
  std::set<std::string> operations = operationsOf("CommandHook.h");
  operations.merge(operationsOf("AppServicesHook.h"));
  EXPECT_EQ(operations.size(), 39u + 10u);
  EXPECT_EQ(called, operations);
  const std::string page = readWholeFile(VESK_SOURCE_DIR "/docs/hook.md");
  for (const std::string& name : operations) {
    EXPECT_NE(page.find('`' + name + '`'), page.npos) << name << " is not in docs/hook.md";
  }
}

class RoadOfCalls : public testing::TestWithParam<unsigned> {
 protected:
  const Call& pick(const std::vector<Call>& calls) {
    unsigned sum = 0;
    for (const Call& call : calls) sum += call.weight;
    unsigned at = caller_.any.below(sum);
    for (const Call& call : calls) {
      if (at < call.weight) return call;
      at -= call.weight;
    }
    return calls.back();
  }

  /// Makes a call; its name.
  const char* makeAny(const std::vector<Call>& calls) {
    const std::size_t count = caller_.any.nodes().size();
    if (count < kFewNodes) return addNode(caller_), "addNode";
    if (count > kManyNodes) return removeNode(caller_), "removeNode";
    const Call& call = pick(calls);
    call.make(caller_);
    return call.name;
  }

  Road road_;
  Caller caller_{road_, GetParam()};
};

TEST_P(RoadOfCalls, TheJournalOfARunMakesTheSameGraphInANewProcess) {
  const std::vector<Call> calls = allCalls();
  std::map<std::string, unsigned> made;
  for (unsigned i = 0; i < kCallsOfRun; ++i) {
    ++made[makeAny(calls)];
    road_.host().takeMessages();
  }
  for (const Call& call : calls) EXPECT_GT(made[call.name], 0u) << call.name;
  for (const char* edit : kOftenInVain) EXPECT_GE(caller_.worked[edit], kLeastWorked) << edit;
  EXPECT_EQ(vesk::textDiff(road_.stored(), road_.replayed()), "");
}

/// Notes the graph of each number of steps, and compares when it is that number again.
class Texts {
 public:
  explicit Texts(Road& road) : road_(road), texts_(road.steps() + 1) {
    texts_.back() = road.stored();
  }

  void noteAfter(const std::string& call) {
    if (road_.hasOpenChunk()) return;
    const std::size_t steps = road_.steps();
    if (steps < texts_.size()) {
      if (texts_[steps]) expectEqual(*texts_[steps], "without a step, after " + call);
      return;
    }
    texts_.resize(steps + 1);
    texts_[steps] = road_.stored();
  }

  /// An edit of several steps is known at its end. While a change bracket is open an undo may wait.
  void expectSame(const char* way) {
    const auto& text = texts_[road_.steps()];
    if (text && !road_.graph().activeChangeBracket())
      expectEqual(*text, way + (" to step " + std::to_string(road_.steps())));
  }

 private:
  void expectEqual(const std::string& text, const std::string& when) {
    const std::string now = road_.stored();
    if (now == text) return;
    const vesk::UndoQueue& queue = road_.host().session().undoQueue();
    ADD_FAILURE() << when << '\n'
                  << vesk::textDiff(text, now) << "last step: " << queue.undoName()
                  << "\nnext step: " << queue.redoName();
  }

  Road& road_;
  std::vector<std::optional<std::string>> texts_;
};

TEST_P(RoadOfCalls, UndoGoesBackToTheStartAndRedoToTheEnd) {
  const std::vector<Call> calls = undoneCalls();
  caller_.onlyUndone = true;
  road_.host().session().undoQueue().clear();
  const std::string start = road_.stored();
  Texts texts(road_);
  for (unsigned i = 0; i < kCallsOfRun && !HasFailure(); ++i) texts.noteAfter(makeAny(calls));
  while (road_.hasOpenChunk()) road_.services().closeUndoChunk();
  texts.noteAfter("closeUndoChunk");
  const std::string end = road_.stored();
  const std::size_t steps = road_.steps();
  EXPECT_GT(steps, kCallsOfRun / 6);
  road_.host().takeMessages();

  const auto go = [&](auto operation, const char* way) {
    (road_.services().*operation)();
    road_.runIdleLines();
    if (!road_.hasOpenChunk()) texts.expectSame(way);
  };
  for (std::size_t i = 0; i < steps && !HasFailure(); ++i) {
    go(&orvUI_v1::AppServicesHook::undo, "back");
  }
  EXPECT_EQ(vesk::textDiff(start, road_.stored()), "");
  for (std::size_t i = 0; i < steps && !HasFailure(); ++i) {
    go(&orvUI_v1::AppServicesHook::redo, "forth");
  }
  EXPECT_EQ(vesk::textDiff(end, road_.stored()), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, RoadOfCalls, testing::Range(1u, kRuns + 1));

}  // namespace
