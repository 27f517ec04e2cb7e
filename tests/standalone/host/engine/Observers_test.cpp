#include "standalone/host/engine/Observers.h"

#include <gmock/gmock.h>

#include <optional>

#include "standalone/host/scene/Scene.h"
#include "tests/support/HostTest.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;

TEST(Observers, HearInTheOrderInWhichTheyCame) {
  Observers<int> numbers;
  std::vector<std::string> heard;
  const auto first = numbers.add([&](int n) { heard.push_back("first " + std::to_string(n)); });
  const auto second = numbers.add([&](int n) { heard.push_back("second " + std::to_string(n)); });
  numbers.tell(7);
  EXPECT_THAT(heard, ElementsAre("first 7", "second 7"));
}

TEST(Observers, HearNothingWhenTheirObservationHasEnded) {
  Observers<> events;
  int heard = 0;
  {
    const auto observation = events.add([&] { ++heard; });
  }
  events.tell();
  EXPECT_EQ(heard, 0);
}

TEST(Observers, AnObservationThatMovesGoesOn) {
  Observers<> events;
  int heard = 0;
  Observation kept;
  kept = events.add([&] { ++heard; });
  const Observation last = std::move(kept);
  kept = Observation();
  events.tell();
  EXPECT_EQ(heard, 1);
}

TEST(Observers, OneThatEndsAnotherWhileItIsToldSilencesIt) {
  Observers<> events;
  int heard = 0;
  std::optional<Observation> second;
  const auto first = events.add([&] { second.reset(); });
  second = events.add([&] { ++heard; });
  events.tell();
  EXPECT_EQ(heard, 0);
}

TEST(Observers, AnObservationMayOutliveWhatIsWatched) {
  std::optional<Observers<>> events(std::in_place);
  const auto observation = events->add([] {});
  events.reset();
}

/// How often something is told while lines run.
class Told : public ::testing::Test {
 protected:
  void watch(Observers<>& observers) {
    observation_ = observers.add([this] { ++count_; });
  }

  bool toldBy(std::string_view line) {
    count_ = 0;
    host_.run(line);
    return count_ > 0;
  }

  hosttest::Host host_;
  Observation observation_;
  int count_ = 0;
};

TEST_F(Told, TheSceneTellsOfNodesNamesAndFiles) {
  watch(host_.session().scene().changed());
  EXPECT_TRUE(toldBy("createNode group"));
  EXPECT_TRUE(toldBy("rename group other"));
  EXPECT_TRUE(toldBy("undo"));
  EXPECT_TRUE(toldBy("delete group"));
  EXPECT_TRUE(toldBy("file -new -force"));
  EXPECT_FALSE(toldBy("ls"));
}

TEST_F(Told, TheSceneTellsThatItHasSomethingToSaveOnce) {
  host_.session().scene().setModified(false);
  watch(host_.session().scene().changed());
  host_.session().scene().setModified(true);
  host_.session().scene().setModified(true);
  EXPECT_EQ(count_, 1);
}

TEST_F(Told, TheSelectionTells) {
  host_.run("createNode group; createNode group");
  watch(host_.session().scene().selection().changed());
  EXPECT_TRUE(toldBy("select group"));
  EXPECT_TRUE(toldBy("undo"));
  EXPECT_TRUE(toldBy("select -clear"));
  EXPECT_FALSE(toldBy("rename group other"));
}

TEST_F(Told, TheUndoQueueTellsOfEveryChangeOfItsSteps) {
  watch(host_.session().undoQueue().changed());
  EXPECT_TRUE(toldBy("createNode group"));
  EXPECT_TRUE(toldBy("undo"));
  EXPECT_TRUE(toldBy("redo"));
  EXPECT_TRUE(toldBy("undoInfo -length 5"));
  EXPECT_TRUE(toldBy("file -new -force"));
  EXPECT_FALSE(toldBy("ls"));
}

TEST_F(Told, TheIdleQueueTellsOfALine) {
  watch(host_.session().idleQueue().added());
  host_.session().idleQueue().add({"echo", false});
  EXPECT_EQ(count_, 1);
}

TEST(LineEnded, TellsOfLinesThatNoCommandRan) {
  hosttest::Host host;
  std::vector<std::string> heard;
  const auto observation = host.session().engine().lineEnded().add([&](const FinishedLine& line) {
    heard.push_back(std::string(line.text) + " = " + toJson(line.result) + ", " +
                    std::to_string(line.status.statusCode()));
  });
  host.run("createNode group -name a");
  host.refusal("nonsense");
  EXPECT_THAT(heard, ElementsAre("createNode group -name a = \"a\", 0", "nonsense = , 3"));
}

TEST(UndoQueueSteps, StandInARowOfThoseDoneAndThoseUndone) {
  hosttest::Host host;
  host.run("createNode group -name a");
  host.run("createNode group -name b");
  host.run("createNode group -name c");
  host.run("undo");
  host.run("undo");
  const UndoQueue& queue = host.session().undoQueue();
  EXPECT_EQ(queue.doneCount(), 1u);
  ASSERT_EQ(queue.stepCount(), 3u);
  EXPECT_EQ(queue.stepName(0), "createNode group -name a");
  EXPECT_EQ(queue.stepName(1), "createNode group -name b");
  EXPECT_EQ(queue.stepName(2), "createNode group -name c");
}

}  // namespace
}  // namespace vesk
