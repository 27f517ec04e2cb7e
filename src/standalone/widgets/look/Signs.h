#pragma once

#include <QPainter>

#include "platform/orvUI_1_0/OrvUiApi.h"

class QLineEdit;

namespace orvuilib {

/// The sign of what cannot be edited.
void paintLock(QPainter& painter, const QRectF& area, const QColor& colour);

/// Gives the field a cross that empties it and is there while there is text; drawn at any size.
ORVUI_EXPORT void addClearAction(QLineEdit& field);

}  // namespace orvuilib
