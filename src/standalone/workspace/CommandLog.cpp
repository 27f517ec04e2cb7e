#include "standalone/workspace/CommandLog.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QtMath>
#include <algorithm>
#include <memory>

#include "standalone/workspace/Theme.h"

namespace vesk {
namespace {

constexpr int kMostLines = 10'000;
constexpr int kLongestLine = 2'000;  // characters
constexpr int kMargin = 4;           // of the text, and of the view around it, at 100 percent

struct KindRow {
  const char* mark;
  QColor colour;
};

KindRow rowOf(LogKind kind) {
  switch (kind) {
    case LogKind::Echo:
      return {"> ", theme::kEcho};
    case LogKind::Result:
      return {"= ", theme::kResult};
    case LogKind::Warning:
      return {"? ", theme::kWarning};
    case LogKind::Error:
      return {"! ", theme::kError};
    default:
      return {": ", theme::palette().color(QPalette::Text)};
  }
}

QTextCharFormat inColour(const QColor& colour) {
  QTextCharFormat format;
  format.setForeground(colour);
  return format;
}

}  // namespace

CommandLog::CommandLog(QWidget* parent) : QPlainTextEdit(parent), flush_([this] { flush(); }) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setMaximumBlockCount(kMostLines);
  setFrameShape(QFrame::NoFrame);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  applyFont();
  setTabChangesFocus(true);
  setAccessibleName("What ran");
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void CommandLog::add(LogKind kind, std::string_view text) {
  const QString whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  for (const QString& line : whole.split('\n')) {
    waiting_.emplace_back(kind, line.size() <= kLongestLine
                                    ? line
                                    : line.left(kLongestLine) + QStringLiteral(" \u2026"));
  }
  if (waiting_.size() > 2 * kMostLines)
    waiting_.erase(waiting_.begin(), waiting_.end() - kMostLines);
  flush_.request();
}

void CommandLog::flush() {
  const bool atEnd = isAtEnd();
  auto lines = std::exchange(waiting_, {});
  if (lines.size() > kMostLines) lines.erase(lines.begin(), lines.end() - kMostLines);
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  for (const auto& [kind, line] : lines) {
    const KindRow row = rowOf(kind);
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty()) cursor.insertBlock();
    cursor.insertText(row.mark, inColour(theme::kDimText));
    cursor.insertText(line, inColour(row.colour));
  }
  cursor.endEditBlock();
  fitMargins();
  if (atEnd) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

bool CommandLog::isAtEnd() const {
  return verticalScrollBar()->value() >= verticalScrollBar()->maximum() - 1;
}

void CommandLog::resizeEvent(QResizeEvent* event) {
  const bool atEnd = isAtEnd();
  fitMargins();
  QPlainTextEdit::resizeEvent(event);
  if (atEnd) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void CommandLog::clearLog() {
  waiting_.clear();
  clear();
}

void CommandLog::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::StyleChange) applyFont();
}

void CommandLog::applyFont() {
  setFont(theme::codeFont());
  document()->setDocumentMargin(theme::scaled(kMargin));
  fitMargins();
}

/// That of the lines that are laid out may be a pixel more than that of the font.
int CommandLog::lineHeight() const {
  const QTextLayout* layout = document()->firstBlock().layout();
  return layout->lineCount() > 0 ? qCeil(layout->lineAt(0).height()) : fontMetrics().lineSpacing();
}

/// The view shows whole lines: what is left over of its height lies ahead of the first.
void CommandLog::fitMargins() {
  const int margin = theme::scaled(kMargin);
  const int room = contentsRect().height() - 2 * margin - 1;  // as Qt reckons with
  setViewportMargins(margin, std::max(room, 0) % lineHeight(), 0, 0);
}

void CommandLog::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  menu->addSeparator();
  menu->addAction("Clear", this, [this] { clearLog(); });
  menu->exec(event->globalPos());
}

}  // namespace vesk
