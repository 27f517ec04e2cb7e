#include "standalone/workspace/CommandInput.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <algorithm>

#include "standalone/host/engine/Completion.h"
#include "standalone/workspace/Theme.h"

namespace vesk {
namespace {

constexpr int kMostLinesShown = 8;
constexpr std::size_t kLongestHistory = 1'000;

QString commonBeginning(const QStringList& names) {
  QString common = names.front();
  for (const QString& name : names) {
    while (!name.startsWith(common)) common.chop(1);
  }
  return common;
}

}  // namespace

CommandInput::CommandInput(const CommandRegistry& registry, QWidget* parent)
    : QPlainTextEdit(parent),
      registry_(registry),
      completer_(new QCompleter(this)),
      offers_(new QStringListModel(this)) {
  setFrameShape(QFrame::NoFrame);
  setPlaceholderText("Type a line");
  setToolTip(
      "Return runs the line, Shift+Return begins another.\n"
      "Tab completes commands and flags; Up and Down recall what ran.");
  setAccessibleName("Command line");
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  applyFont();
  completer_->setWidget(this);
  completer_->setModel(offers_);
  completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  connect(completer_, QOverload<const QString&>::of(&QCompleter::activated), this,
          [this](const QString& name) { insertRest(name + " "); });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { fitHeight(); });
}

void CommandInput::applyFont() {
  setFont(theme::codeFont());
  document()->setDocumentMargin(theme::scaled(8));
  fitHeight();
}

void CommandInput::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::StyleChange) applyFont();
}

void CommandInput::fitHeight() {
  const int lines = std::clamp(document()->blockCount(), 1, kMostLinesShown);
  const bool more = document()->blockCount() > kMostLinesShown;
  setVerticalScrollBarPolicy(more ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  const double margins = 2 * document()->documentMargin();
  setFixedHeight(lines * fontMetrics().lineSpacing() + static_cast<int>(margins));
}

/// Tab is a key of its own here as long as there is something to complete.
bool CommandInput::focusNextPrevChild(bool next) {
  return document()->isEmpty() && QAbstractScrollArea::focusNextPrevChild(next);
}

void CommandInput::keyPressEvent(QKeyEvent* event) {
  if (completer_->popup()->isVisible()) {
    switch (event->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Tab:
      case Qt::Key_Escape:
        event->ignore();  // the list takes it
        return;
      default:
        completer_->popup()->hide();
    }
  }
  if (!handleKey(*event)) QPlainTextEdit::keyPressEvent(event);
}

bool CommandInput::handleKey(const QKeyEvent& event) {
  const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (isReturn && event.modifiers() & Qt::ShiftModifier) {
    insertPlainText("\n");
    return true;
  }
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (!plain) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      enter();
      return true;
    case Qt::Key_Tab:
      complete();
      return true;
    case Qt::Key_Up:
      return textCursor().block() == document()->firstBlock() && recall(-1);
    case Qt::Key_Down:
      return textCursor().block() == document()->lastBlock() && recall(1);
    case Qt::Key_Escape:
      clear();
      return true;
    default:
      return false;
  }
}

void CommandInput::enter() {
  const QString text = toPlainText();
  if (text.trimmed().isEmpty()) return;
  if (history_.empty() || history_.back() != text) history_.push_back(text);
  if (history_.size() > kLongestHistory) history_.erase(history_.begin());
  recalled_ = history_.size();
  draft_.clear();
  clear();
  if (entered) entered(text);
}

bool CommandInput::recall(int step) {
  if ((step < 0 && recalled_ == 0) || (step > 0 && recalled_ == history_.size())) return false;
  if (recalled_ == history_.size()) draft_ = toPlainText();
  recalled_ += step;
  setPlainText(recalled_ == history_.size() ? draft_ : history_[recalled_]);
  moveCursor(QTextCursor::End);
  return true;
}

QString CommandInput::textBeforeCursor() const {
  const QTextCursor cursor = textCursor();
  return cursor.block().text().left(cursor.positionInBlock());
}

QString CommandInput::typedWord() const {
  return QString::fromStdString(std::string(lastWord(textBeforeCursor().toStdString())));
}

void CommandInput::complete() {
  const std::string line = textBeforeCursor().toStdString();
  QStringList names;
  for (const std::string& name : completions(registry_, line, lastWord(line))) {
    names.append(QString::fromStdString(name));
  }
  if (names.isEmpty()) return;
  if (names.size() == 1) {
    insertRest(names.front() + " ");
    return;
  }
  insertRest(commonBeginning(names));
  showOffers(names);
}

void CommandInput::insertRest(const QString& name) {
  insertPlainText(name.mid(typedWord().size()));
}

void CommandInput::showOffers(const QStringList& names) {
  offers_->setStringList(names);
  QAbstractItemView* list = completer_->popup();
  list->setFont(font());
  QRect place = cursorRect();
  place.setWidth(list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width() +
                 theme::scaled(8));
  completer_->complete(place);
  list->setCurrentIndex(offers_->index(0));
}

}  // namespace vesk
