#include "standalone/widgets/parameters/fields/EntryField.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {
namespace {

/// In milliseconds.
constexpr int kMarkTime = 2500;

}  // namespace

EntryField::EntryField(QWidget* parent) : QLineEdit(parent) {
  mark_.setSingleShot(true);
  mark_.setInterval(kMarkTime);
  connect(&mark_, &QTimer::timeout, this, [this] {
    setToolTip(caption_);
    update();
  });
  setMinimumWidth(0);
}

void EntryField::showValue(const QString& full) {
  const bool same = full == full_ && !mixed_;
  full_ = full;
  mixed_ = false;
  setPlaceholderText(QString());
  if (!isModified() && !(same && text() == full)) display();
}

void EntryField::showMixed() {
  full_.clear();
  mixed_ = true;
  setPlaceholderText(QString(QChar(0x2014)));
  if (!isModified()) display();
}

/// Only what has the focus shows all its digits.
void EntryField::display() {
  const QString shown = hasFocus() && isEnabled() ? full_ : shortened(full_);
  if (text() == shown) return;
  const bool allSelected = hasSelectedText() && selectedText() == text();
  setText(shown);
  if (hasFocus() && allSelected) {
    selectAll();
  } else if (!hasFocus()) {
    setCursorPosition(0);
  }
}

void EntryField::enter() {
  if (!isModified()) return;
  QString reason;
  const std::optional<QString> value = read(text(), reason);
  setModified(false);
  if (!value) {
    refuse(reason);
    return;
  }
  const bool isNew = mixed_ || *value != full_;
  if (isNew) {
    full_ = *value;
    mixed_ = false;
  }
  display();
  if (isNew && entered) entered(*value);
}

void EntryField::revert() {
  setModified(false);
  setText(full_);
  selectAll();
}

void EntryField::refuse(const QString& reason) {
  setModified(false);
  display();
  if (hasFocus()) selectAll();
  setToolTip(reason);
  mark_.start();
  update();
}

void EntryField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!isModified()) setText(full_);
  const bool byKey =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (byKey) selectAll();
}

void EntryField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  enter();
  display();
}

void EntryField::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      enter();
      selectAll();
      return;
    case Qt::Key_Escape:
      if (!isModified()) break;
      revert();
      return;
    default:
      break;
  }
  if (event->key() == Qt::Key_Escape) {
    event->ignore();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void EntryField::setCaption(const QString& caption) {
  caption_ = caption;
  setToolTip(caption);
}

bool EntryField::hasRoomForCaption() const {
  return !caption_.isEmpty() && width() > fontMetrics().height() * 3;
}

void EntryField::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  const int caption = hasRoomForCaption() ? fontMetrics().horizontalAdvance(caption_) : 0;
  setTextMargins(caption, 0, 0, 0);
}

void EntryField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  if (hasRoomForCaption()) {
    painter.setPen(style::faintText(*this));
    painter.drawText(rect().adjusted(style::gap(*this) + 2, 0, 0, 0), Qt::AlignVCenter, caption_);
  }
  if (!isRefused()) return;
  const int thickness = std::max(2, height() / 12);
  painter.fillRect(QRect(1, height() - thickness - 1, width() - 2, thickness), style::refusal());
}

}  // namespace orvuilib
