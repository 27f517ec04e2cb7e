#include "standalone/workspace/CommandPanel.h"

#include <QFrame>
#include <QVBoxLayout>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/workspace/CommandInput.h"
#include "standalone/workspace/CommandLog.h"
#include "standalone/workspace/Theme.h"
#include "standalone/workspace/Workspace.h"

namespace vesk {
namespace {

LogKind logKind(MessageKind kind) {
  switch (kind) {
    case MessageKind::Error:
      return LogKind::Error;
    case MessageKind::Warning:
      return LogKind::Warning;
    case MessageKind::Echo:
      return LogKind::Echo;
    default:
      return LogKind::Print;
  }
}

bool isBlank(std::string_view text) { return text.find_first_not_of(" \t\n") == text.npos; }

QWidget* thinLine() {
  auto* line = new QFrame;
  line->setFixedHeight(1);
  line->setAutoFillBackground(true);
  QPalette palette = line->palette();
  palette.setColor(QPalette::Window, theme::kLine);
  line->setPalette(palette);
  return line;
}

}  // namespace

CommandPanel::CommandPanel(HostSession& session)
    : session_(session), log_(new CommandLog), input_(new CommandInput(session.registry())) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(log_, 1);
  layout->addWidget(thinLine());
  layout->addWidget(input_);
  setFocusProxy(input_);
  input_->entered = [this](const QString& text) { runLines(text); };
  sink_ = session_.messages().addSink([this](const Message& message) { hear(message); });
  results_ = session_.engine().lineEnded().add([this](const FinishedLine& line) {
    const bool told = std::exchange(toldError_, false);
    if (!line.display) return;
    if (hasResult(line.result)) log_->add(LogKind::Result, toText(line.result));
    if (line.status || told) return;
    log_->add(LogKind::Error, "it failed with status " + std::to_string(line.status.statusCode()));
  });
}

CommandPanel::~CommandPanel() { session_.messages().removeSink(sink_); }

void CommandPanel::hear(const Message& message) {
  toldError_ |= message.kind == MessageKind::Error;
  const bool blankLine = message.kind == MessageKind::Echo && isBlank(message.text);
  if (!blankLine) log_->add(logKind(message.kind), message.text);
}

/// As a script: one line after the other, up to the first that fails or quits. Lines may close this
/// panel, and the text is the caller's.
void CommandPanel::runLines(const QString& text) {
  const std::string script = text.toStdString();
  HostSession& session = session_;
  forEachLine(script, [&session](std::string_view line, std::size_t) {
    return isCommentLine(line) || (runLine(line) && !session.quitRequested);
  });
}

}  // namespace vesk
