#pragma once

#include <QImage>
#include <span>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Draws thin lines with soft edges into a picture of 32 bits a pixel without transparency. It is
/// several times quicker than a QPainter, at any width, which is what frames with hundreds of long
/// wires need. Points are in pixels of the picture.
class ORVUI_EXPORT WireRaster {
 public:
  /// Nothing is drawn outside of `clip`. The picture must not be shared, and outlives this.
  WireRaster(QImage& picture, const QRect& clip);

  /// A line through the points, `width` pixels wide.
  void drawLine(std::span<const QPointF> points, qreal width, QRgb colour);

  /// Upper and lower edge are soft.
  void fillRect(const QRectF& area, QRgb colour);

 private:
  struct Piece;
  void drawPiece(const QPointF& from, const QPointF& to, qreal width, QRgb colour);
  void drawColumns(const Piece& piece, QRgb colour);
  static void drawInside(QRgb* column, int above, int below, std::ptrdiff_t nextAcross,
                         QRgb colour);
  static void drawClipped(QRgb* column, int above, int below, const Piece& piece, QRgb colour);

  QRgb* pixels_;
  std::ptrdiff_t stride_;
  QRect clip_;
};

}  // namespace orvuilib
