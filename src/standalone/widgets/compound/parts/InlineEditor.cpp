#include "standalone/widgets/compound/parts/InlineEditor.h"

#include <QKeyEvent>

namespace orvuilib {

InlineEditor::InlineEditor(const Theme& theme, QWidget* parent)
    : QPlainTextEdit(parent), theme_(theme) {
  setObjectName(QStringLiteral("inlineEditor"));
  setPalette(theme.widgetPalette());
  setFont(theme.widgetFont());
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::StyledPanel);
  hide();
}

void InlineEditor::edit(const QRect& area, const QString& text, bool severalLines, Done done) {
  cancel();
  before_ = text;
  severalLines_ = severalLines;
  done_ = std::move(done);
  setLineWrapMode(severalLines ? WidgetWidth : NoWrap);
  setGeometry(area.united(QRect(area.topLeft(), QSize(theme_.pixels(120), theme_.pixels(28))))
                  .intersected(parentWidget()->rect()));
  setPlainText(text);
  selectAll();
  show();
  raise();
  setFocus();
}

void InlineEditor::cancel() {
  done_ = nullptr;
  if (!isHidden()) hide();
}

/// What is told of it may open another editor.
void InlineEditor::commit() {
  const Done done = std::exchange(done_, nullptr);
  const QString text = toPlainText();
  const bool changed = text != before_;
  hide();
  if (done && changed) done(text);
}

void InlineEditor::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) {
    cancel();
    parentWidget()->setFocus();
  } else if (isReturn && !(severalLines_ && (event->modifiers() & Qt::ShiftModifier))) {
    parentWidget()->setFocus();
    commit();
  } else if (event->key() != Qt::Key_Tab) {
    QPlainTextEdit::keyPressEvent(event);
  }
}

void InlineEditor::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (isVisible()) commit();
}

bool InlineEditor::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QPlainTextEdit::event(event);
}

}  // namespace orvuilib
