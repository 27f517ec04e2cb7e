#include "standalone/host/engine/Messages.h"

#include <algorithm>

namespace vesk {

MessageChannel::SinkId MessageChannel::addSink(Sink sink) {
  Sinks sinks = *sinks_;
  sinks.emplace_back(++lastId_, std::move(sink));
  sinks_ = std::make_shared<Sinks>(std::move(sinks));
  return lastId_;
}

void MessageChannel::removeSink(SinkId id) {
  Sinks sinks = *sinks_;
  std::erase_if(sinks, [id](const auto& entry) { return entry.first == id; });
  sinks_ = std::make_shared<Sinks>(std::move(sinks));
}

bool MessageChannel::hasSink(SinkId id) const {
  return std::any_of(sinks_->begin(), sinks_->end(),
                     [id](const auto& entry) { return entry.first == id; });
}

void MessageChannel::send(MessageKind kind, std::string_view text) {
  const auto sinks = sinks_;  // a sink may add or remove sinks
  for (const auto& [id, sink] : *sinks) {
    if (hasSink(id)) sink({kind, text});
  }
}

}  // namespace vesk
