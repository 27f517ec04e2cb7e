#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPalette>
#include <array>
#include <string>
#include <string_view>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// The colours of a graph on its canvas.
struct Palette {
  QColor canvas{0x23, 0x25, 0x29};
  QColor gridFine{0x29, 0x2b, 0x30};
  QColor gridCoarse{0x30, 0x33, 0x38};
  QColor body{0x38, 0x3b, 0x41};
  QColor boundary{0x2c, 0x2f, 0x34};
  QColor outline{0x18, 0x19, 0x1c};
  QColor selected{0xf0, 0xb3, 0x55};
  QColor hovered{0x8a, 0x90, 0x9a};
  QColor text{0xe8, 0xe9, 0xeb};
  QColor quietText{0xa3, 0xa8, 0xb1};
  QColor accepted{0x7f, 0xc9, 0x8a};
  QColor frozen{0x7d, 0xb4, 0xd8};
  QColor frozenBody{0x33, 0x40, 0x4b};
  QColor bypassed{0xc9, 0x9a, 0x5b};
  QColor refused{0xd0, 0x6a, 0x62};
  QColor band{0xf0, 0xb3, 0x55, 0x28};
  QColor panel{0x2e, 0x31, 0x36};
  QColor field{0x1f, 0x21, 0x24};
};

/// Fonts, sizes and colours of an editor. Sizes of the canvas are in its own units, which are
/// pixels at a scale and a zoom of 1; those of the widgets around it are in pixels.
class ORVUI_EXPORT Theme {
 public:
  explicit Theme(qreal scale);

  qreal scale() const { return scale_; }
  const Palette& palette() const { return palette_; }
  const QFont& font() const { return font_; }
  const QFont& titleFont() const { return titleFont_; }

  /// For the widgets around the canvas.
  const QFont& widgetFont() const { return widgetFont_; }
  QPalette widgetPalette() const;

  /// A length of a widget, in pixels.
  int pixels(qreal length) const { return qRound(length * scale_); }

  /// The width of a text on the canvas; quick, for texts come by the ten thousand.
  qreal textWidth(const QString& text) const { return width(text, metrics_, advances_); }

  /// The same of names, which are mostly plain letters.
  qreal textWidth(const std::string& utf8) const { return width(utf8, metrics_, advances_); }
  qreal titleWidth(const std::string& utf8) const {
    return width(utf8, titleMetrics_, titleAdvances_);
  }

  /// A text that fits into the width, with its end left out if need be.
  QString elided(const QString& text, qreal width) const;

  /// Types of one family look alike: an array is coloured as its elements are.
  static QColor typeColour(std::string_view type);

  /// The title bar of a node of that type. Types of one library look alike.
  QColor titleColour(std::string_view type) const;

 private:
  using Advances = std::array<qreal, 128>;
  static Advances measure(const QFontMetricsF& metrics);
  static qreal width(const QString& text, const QFontMetricsF& metrics, const Advances& advances);
  static qreal width(const std::string& utf8, const QFontMetricsF& metrics,
                     const Advances& advances);

  qreal scale_;
  Palette palette_;
  QFont font_;
  QFont titleFont_;
  QFont widgetFont_;
  QFontMetricsF metrics_;
  QFontMetricsF titleMetrics_;
  Advances advances_;
  Advances titleAdvances_;
};

}  // namespace orvuilib
