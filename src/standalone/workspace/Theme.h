#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace vesk::theme {

// The look of the window, in one place: a dark, quiet palette in which every text has a contrast of
// at least 4.5 to 1 to what it stands on.

QPalette palette();

inline const QColor kLine(0x3c, 0x3f, 0x45);     ///< between parts of the window
inline const QColor kTitle(0x32, 0x34, 0x39);    ///< behind the titles of panels
inline const QColor kDimText(0xa0, 0xa6, 0xb0);  ///< what stands back
inline const QColor kEcho(0xa9, 0xc4, 0xe8);     ///< a line that ran
inline const QColor kResult(0x9c, 0xd3, 0xa4);
inline const QColor kError(0xff, 0x94, 0x8a);
inline const QColor kWarning(0xf0, 0xc4, 0x6c);

inline const QColor kHandle(0x4a, 0x4e, 0x56);  ///< of a scroll bar
inline const QColor kHandlePointedAt(0x5d, 0x62, 0x6b);
inline const QColor kHandlePressed(0x70, 0x76, 0x80);

/// Fonts at the interface scale in force.
QFont textFont();
QFont codeFont();

/// A length that is `size` pixels at 100 percent, at the interface scale in force.
int scaled(int size);

/// Gives the application palette, style and font at the interface scale in force.
void apply();

}  // namespace vesk::theme
