#include "tests/sweep/TranscriptRun.h"

#include "standalone/host/engine/ScriptReader.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"

namespace {

unsigned graphsInBrackets(vesk::HostSession& session) {
  unsigned count = 0;
  for (const auto& [place, node] : session.scene().nodes()) {
    auto* payload = dynamic_cast<vesk::OrvGraphPayload*>(node->payload());
    if (payload) count += payload->graph().container().activeChangeBracket();
  }
  return count;
}

}  // namespace

TranscriptRun::TranscriptRun(vesk::Platform& platform, const std::string& transcript)
    : platform_(platform) {
  vesk::forEachLine(transcript, [this](std::string_view line, std::size_t) {
    if (line.starts_with("> ")) lines_.emplace_back(line.substr(2));
    return true;
  });
}

bool TranscriptRun::next() {
  if (outcomes_.size() == lines_.size()) return false;
  outcomes_.push_back(run(lines_[outcomes_.size()]));
  return true;
}

LineOutcome TranscriptRun::run(const std::string& line) {
  current_ = {};
  platform_.runLine(line, *this);
  current_.brackets = graphsInBrackets(platform_.session());
  current_.hasOpenChunk = platform_.session().undoQueue().hasOpenChunk();
  return current_;
}

void TranscriptRun::message(const vesk::Message& message) {
  if (message.kind == vesk::MessageKind::Echo) return;
  const char* mark = message.kind == vesk::MessageKind::Error     ? "! "
                     : message.kind == vesk::MessageKind::Warning ? "? "
                                                                  : ": ";
  current_.messages.push_back(mark + std::string(message.text));
}

void TranscriptRun::lineEnded(const vesk::ResultValue& result, KStatus status) {
  current_.status = status.statusCode();
  current_.result = vesk::hasResult(result) ? vesk::toJson(result) : "";
}
