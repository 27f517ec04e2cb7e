#pragma once

#include <QSize>
#include <string>

class QWidget;

namespace vesk {

inline constexpr int kLargestPicture = 16384;  ///< pixels of a side

/// Writes a picture of a widget to a PNG file, at once, so that there is never half a picture. A
/// side of `size` that is 0 is that of the widget, which has its own size again afterwards. Empty,
/// or the reason why nothing was written.
std::string writeSnapshot(QWidget& widget, QSize size, const std::string& path);

}  // namespace vesk
