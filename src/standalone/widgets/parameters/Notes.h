#pragma once

#include <QLabel>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

/// A faint text in the middle of its place.
inline QLabel* makeNote(const QString& text, QWidget* parent) {
  auto* note = new QLabel(text, parent);
  note->setAlignment(Qt::AlignCenter);
  note->setWordWrap(true);
  note->setMargin(style::gap(*parent));
  QPalette faint = note->palette();
  faint.setColor(QPalette::WindowText, style::faintText(*parent));
  note->setPalette(faint);
  return note;
}

}  // namespace orvuilib
