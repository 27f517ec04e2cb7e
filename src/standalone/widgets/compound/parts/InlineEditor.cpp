#include "standalone/widgets/compound/parts/InlineEditor.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <algorithm>

#include "standalone/widgets/compound/parts/FocusLoss.h"

namespace orvuilib {

InlineEditor::InlineEditor(const Theme& theme, QWidget* parent)
    : QPlainTextEdit(parent), theme_(theme) {
  setObjectName(QStringLiteral("inlineEditor"));
  setPalette(theme.widgetPalette());
  setFont(theme.widgetFont());
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::StyledPanel);
  // What is done to the field is not done to what it lies on.
  setAttribute(Qt::WA_NoMousePropagation);
  hide();
}

void InlineEditor::edit(Place place, const QString& text, bool severalLines, Done done) {
  cancel();
  const auto area = place();
  if (!area) return;
  place_ = std::move(place);
  before_ = text;
  severalLines_ = severalLines;
  done_ = std::move(done);
  setLineWrapMode(severalLines ? WidgetWidth : NoWrap);
  takePlace(*area);
  setPlainText(text);
  selectAll();
  show();
  raise();
  setFocus();
}

void InlineEditor::follow() {
  if (isHidden()) return;
  const auto area = place_();
  if (area) return takePlace(*area);
  const bool focused = hasFocus();
  cancel();
  if (focused) parentWidget()->setFocus();
}

/// Large enough to write in, and never out of sight.
void InlineEditor::takePlace(const QRect& area) {
  const QSize room = parentWidget()->size();
  const QSize least(theme_.pixels(120), theme_.pixels(28));
  resize(area.size().expandedTo(least).boundedTo(room));
  move(std::clamp(area.x(), 0, room.width() - width()),
       std::clamp(area.y(), 0, room.height() - height()));
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
  if (isVisible() && leaves(*event)) commit();
}

void InlineEditor::insertFromMimeData(const QMimeData* source) {
  if (severalLines_) return QPlainTextEdit::insertFromMimeData(source);
  static const QRegularExpression kLineEnds(QStringLiteral("\\s*[\\r\\n\\x{2028}\\x{2029}]+\\s*"));
  insertPlainText(source->text().trimmed().replace(kLineEnds, QStringLiteral(" ")));
}

bool InlineEditor::event(QEvent* event) {
  // Plain keys of the field are not the window's; of the others it takes those of a text.
  constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (event->type() == QEvent::ShortcutOverride &&
      !(static_cast<QKeyEvent*>(event)->modifiers() & kOthers)) {
    event->accept();
    return true;
  }
  return QPlainTextEdit::event(event);
}

}  // namespace orvuilib
