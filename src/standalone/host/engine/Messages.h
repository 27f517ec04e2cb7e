#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vesk {

enum class MessageKind {
  Error,
  Warning,
  Print,  ///< a text that a command was asked to show
  Echo,   ///< a line that runs with display
};

struct Message {
  MessageKind kind;
  std::string_view text;  ///< UTF-8
};

/// The one road from the host to whoever shows messages: shell, transcript, window.
class MessageChannel {
 public:
  using Sink = std::function<void(const Message&)>;
  using SinkId = unsigned;

  explicit MessageChannel(Sink first = nullptr) {
    if (first) addSink(std::move(first));
  }

  /// Adds a sink; it hears every later message until it is removed.
  SinkId addSink(Sink sink);
  void removeSink(SinkId id);

  void send(MessageKind kind, std::string_view text);
  void error(std::string_view text) { send(MessageKind::Error, text); }
  void warning(std::string_view text) { send(MessageKind::Warning, text); }
  void print(std::string_view text) { send(MessageKind::Print, text); }

 private:
  using Sinks = std::vector<std::pair<SinkId, Sink>>;

  bool hasSink(SinkId id) const;

  std::shared_ptr<const Sinks> sinks_ = std::make_shared<Sinks>();  ///< replaced, never changed
  SinkId lastId_ = 0;
};

}  // namespace vesk
