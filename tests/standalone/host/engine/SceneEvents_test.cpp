#include "standalone/host/engine/SceneEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/OpenVesk/KMessage.h"
#include "tests/support/HostTest.h"

namespace {

using namespace vesk;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr SceneEvent kEvent = SceneEvent::AfterNew;

/// A callback that notes its name, adds or removes others, and is registered with the address of
/// this.
struct Listener {
  std::string name;
  std::vector<std::string>* diary;
  SceneEvents* events;
  SceneEvents::Id removes = 0;
  Listener* adds = nullptr;

  SceneEvents::Id addTo(SceneEvent event = kEvent) { return events->add(event, called, this); }

  static void called(void* self) {
    auto* listener = static_cast<Listener*>(self);
    listener->diary->push_back(listener->name);
    if (listener->removes) listener->events->remove(listener->removes);
    if (listener->adds) listener->adds->addTo();
  }
};

class SceneEventsTest : public ::testing::Test {
 protected:
  Listener listener(const char* name) { return {name, &diary, &events}; }
  std::vector<std::string> send(SceneEvent event = kEvent) {
    diary.clear();
    events.send(event);
    return diary;
  }

  SceneEvents events;
  std::vector<std::string> diary;
};

TEST_F(SceneEventsTest, CallsThoseOfTheEventInOrder) {
  Listener a = listener("a"), b = listener("b"), other = listener("other");
  a.addTo();
  other.addTo(SceneEvent::Exiting);
  b.addTo();
  EXPECT_THAT(send(), ElementsAre("a", "b"));
  EXPECT_THAT(send(SceneEvent::Exiting), ElementsAre("other"));
}

TEST_F(SceneEventsTest, OneFunctionMayBeAddedTwice) {
  Listener a = listener("a");
  const SceneEvents::Id first = a.addTo();
  EXPECT_NE(a.addTo(), first);
  EXPECT_THAT(send(), ElementsAre("a", "a"));
  EXPECT_TRUE(events.remove(first));
  EXPECT_THAT(send(), ElementsAre("a"));
}

TEST_F(SceneEventsTest, WhatIsRemovedIsNotCalled) {
  Listener a = listener("a");
  const SceneEvents::Id id = a.addTo();
  EXPECT_TRUE(events.remove(id));
  EXPECT_THAT(send(), IsEmpty());
  EXPECT_FALSE(events.remove(id));
}

TEST_F(SceneEventsTest, NumbersAreNotUsedAgain) {
  Listener a = listener("a");
  const SceneEvents::Id id = a.addTo();
  events.remove(id);
  EXPECT_NE(a.addTo(), id);
  EXPECT_FALSE(events.remove(0));
}

TEST_F(SceneEventsTest, ACallbackMayRemoveItself) {
  Listener a = listener("a"), b = listener("b");
  a.removes = a.addTo();
  b.addTo();
  EXPECT_THAT(send(), ElementsAre("a", "b"));
  EXPECT_THAT(send(), ElementsAre("b"));
}

TEST_F(SceneEventsTest, ACallbackThatAnotherRemovesAheadOfItsTurnIsNotCalled) {
  Listener a = listener("a"), b = listener("b"), c = listener("c");
  a.addTo();
  a.removes = b.addTo();
  c.addTo();
  EXPECT_THAT(send(), ElementsAre("a", "c"));
}

TEST_F(SceneEventsTest, ACallbackThatIsAddedWhileOneRunsIsCalledFromTheNextEventOn) {
  Listener a = listener("a"), added = listener("added");
  a.adds = &added;
  a.removes = a.addTo();
  EXPECT_THAT(send(), ElementsAre("a"));
  EXPECT_THAT(send(), ElementsAre("added"));
}

TEST_F(SceneEventsTest, IsSendingWhileACallbackRuns) {
  static bool sending = false;
  events.add(
      kEvent, [](void* self) { sending = static_cast<SceneEvents*>(self)->isSending(); }, &events);
  EXPECT_FALSE(events.isSending());
  events.send(kEvent);
  EXPECT_TRUE(sending);
  EXPECT_FALSE(events.isSending());
}

TEST_F(SceneEventsTest, AnEventMayBeSentFromACallback) {
  Listener inner = listener("inner"), outer = listener("outer");
  inner.addTo(SceneEvent::AfterSave);
  outer.addTo();
  events.add(
      kEvent, [](void* self) { static_cast<SceneEvents*>(self)->send(SceneEvent::AfterSave); },
      &events);
  outer.addTo();
  EXPECT_THAT(send(), ElementsAre("outer", "inner", "outer"));
  EXPECT_FALSE(events.isSending());
}

TEST(SceneMessages, AreCalledWithTheirClientData) {
  hosttest::Host host;
  int calls = 0;
  KStatus status = StatusFailure;
  const auto count = [](void* data) { ++*static_cast<int*>(data); };
  EXPECT_NE(KSceneMessage::addCallback(KSceneMessage::kExiting, count, &calls, &status), 0u);
  EXPECT_TRUE(status);
  host.session().exit();
  EXPECT_EQ(calls, 1);
}

TEST(SceneMessages, RefuseANullFunction) {
  hosttest::Host host;
  KStatus status;
  EXPECT_EQ(KSceneMessage::addCallback(KSceneMessage::kExiting, nullptr, nullptr, &status), 0u);
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
}

TEST(SceneMessages, CanBeRemovedOnce) {
  hosttest::Host host;
  int calls = 0;
  const auto count = [](void* data) { ++*static_cast<int*>(data); };
  const std::uint64_t id = KSceneMessage::addCallback(KSceneMessage::kExiting, count, &calls);
  EXPECT_TRUE(KMessage::removeCallback(id));
  EXPECT_EQ(KMessage::removeCallback(id).statusCode(), StatusFailure);
  host.session().exit();
  EXPECT_EQ(calls, 0);
}

TEST(SceneMessages, TheExitIsToldOnce) {
  int calls = 0;
  {
    hosttest::Host host;
    const auto count = [](void* data) { ++*static_cast<int*>(data); };
    KSceneMessage::addCallback(KSceneMessage::kExiting, count, &calls);
    host.session().exit();
    host.session().exit();
  }
  EXPECT_EQ(calls, 1);
}

}  // namespace
