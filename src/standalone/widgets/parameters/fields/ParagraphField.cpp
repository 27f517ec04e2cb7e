#include "standalone/widgets/parameters/fields/ParagraphField.h"

#include <QKeyEvent>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

ParagraphField::ParagraphField(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  document()->setDocumentMargin(style::gap(*this) / 2.0);
  // The margin counts as an edit.
  document()->clearUndoRedoStacks();
  document()->setModified(false);
}

void ParagraphField::display() {
  setPlaceholderText(mixed_ ? QString(QChar(0x2014)) : QString());
  if (toPlainText() != value_) setPlainText(value_);
  document()->setModified(false);
}

void ParagraphField::showValue(const QString& text) {
  value_ = text;
  mixed_ = false;
  if (!isTyped()) display();
}

void ParagraphField::showMixed() {
  value_.clear();
  mixed_ = true;
  if (!isTyped()) display();
}

void ParagraphField::enter() {
  if (!isTyped()) return;
  document()->setModified(false);
  const QString text = toPlainText();
  if (!mixed_ && text == value_) return;
  value_ = text;
  mixed_ = false;
  if (entered) entered(text);
}

void ParagraphField::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) enter();
}

void ParagraphField::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && event->modifiers() & Qt::ControlModifier) {
    enter();
  } else if (event->key() == Qt::Key_Escape) {
    event->setAccepted(isTyped());
    display();
  } else {
    QPlainTextEdit::keyPressEvent(event);
  }
}

}  // namespace orvuilib
