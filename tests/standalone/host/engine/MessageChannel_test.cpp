#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/host/engine/Messages.h"

namespace {

using namespace vesk;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

MessageChannel::Sink noteIn(Texts& texts, const std::string& prefix = "") {
  return [&texts, prefix](const Message& message) {
    texts.push_back(prefix + std::string(message.text));
  };
}

TEST(MessageChannel, EverySinkHearsEveryMessageInOrder) {
  Texts texts;
  MessageChannel channel(noteIn(texts, "a "));
  channel.addSink(noteIn(texts, "b "));
  channel.error("1");
  channel.print("2");
  EXPECT_THAT(texts, ElementsAre("a 1", "b 1", "a 2", "b 2"));
}

TEST(MessageChannel, MessagesHaveTheirKind) {
  std::vector<MessageKind> kinds;
  MessageChannel channel([&](const Message& message) { kinds.push_back(message.kind); });
  channel.error("");
  channel.warning("");
  channel.print("");
  channel.send(MessageKind::Echo, "");
  EXPECT_THAT(kinds, ElementsAre(MessageKind::Error, MessageKind::Warning, MessageKind::Print,
                                 MessageKind::Echo));
}

TEST(MessageChannel, WithoutSinkMessagesAreDropped) {
  Texts texts;
  MessageChannel channel;
  channel.error("dropped");
  channel.addSink(noteIn(texts));
  EXPECT_THAT(texts, IsEmpty());
}

TEST(MessageChannel, ARemovedSinkHearsNothingMore) {
  Texts texts;
  MessageChannel channel;
  const auto id = channel.addSink(noteIn(texts, "a "));
  channel.addSink(noteIn(texts, "b "));
  channel.removeSink(id);
  channel.removeSink(99);
  channel.error("1");
  EXPECT_THAT(texts, ElementsAre("b 1"));
}

TEST(MessageChannel, ASinkMayRemoveItself) {
  Texts texts;
  MessageChannel channel;
  MessageChannel::SinkId id = 0;
  id = channel.addSink([&](const Message& message) {
    texts.emplace_back(message.text);
    channel.removeSink(id);
  });
  channel.error("1");
  channel.error("2");
  EXPECT_THAT(texts, ElementsAre("1"));
}

TEST(MessageChannel, ASinkThatAnotherRemovesAheadOfItsTurnHearsNothing) {
  Texts texts;
  MessageChannel channel;
  MessageChannel::SinkId second = 0;
  channel.addSink([&](const Message&) { channel.removeSink(second); });
  second = channel.addSink(noteIn(texts));
  channel.error("1");
  EXPECT_THAT(texts, IsEmpty());
}

TEST(MessageChannel, ASinkThatIsAddedWhileAMessageIsOnItsWayHearsTheNext) {
  Texts texts;
  MessageChannel channel;
  bool added = false;
  channel.addSink([&](const Message&) {
    if (!std::exchange(added, true)) channel.addSink(noteIn(texts));
  });
  channel.error("1");
  channel.error("2");
  EXPECT_THAT(texts, ElementsAre("2"));
}

TEST(MessageChannel, ASinkMaySendAMessage) {
  Texts texts;
  MessageChannel channel;
  channel.addSink([&](const Message& message) {
    if (message.kind == MessageKind::Error) channel.print("printed");
  });
  channel.addSink(noteIn(texts));
  channel.error("1");
  EXPECT_THAT(texts, ElementsAre("printed", "1"));
}

}  // namespace
