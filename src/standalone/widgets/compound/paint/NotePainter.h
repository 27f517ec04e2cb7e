#pragma once

#include <QPainter>

#include "standalone/widgets/compound/paint/Detail.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// The corner by which a note is made larger.
QRectF handleOf(const NoteItem& note);

/// The part of a backdrop that moves it; a sticky note is moved by all of itself.
QRectF headOf(const NoteItem& note);

void paintNote(QPainter& painter, const NoteItem& note, const Theme& theme,
               const PaintSettings& settings);

/// The lines behind everything, in pixels. `step` in units of the canvas; none for 0.
void paintGrid(QPainter& painter, const QRect& area, qreal step, const PaintSettings& settings,
               const Palette& palette);

}  // namespace orvuilib
