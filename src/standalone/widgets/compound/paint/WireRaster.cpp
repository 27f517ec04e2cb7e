#include "standalone/widgets/compound/paint/WireRaster.h"

#include <algorithm>
#include <cmath>

namespace orvuilib {
namespace {

/// `share` of 256 parts of `colour`, the rest as it was.
QRgb mixed(QRgb below, QRgb colour, int share) {
  const auto part = static_cast<unsigned>(share);
  const unsigned redAndBlue = below & 0xff00ff;
  const unsigned green = below & 0x00ff00;
  const unsigned mixedRedAndBlue = redAndBlue + ((((colour & 0xff00ff) - redAndBlue) * part) >> 8);
  const unsigned mixedGreen = green + ((((colour & 0x00ff00) - green) * part) >> 8);
  return 0xff000000u | (mixedRedAndBlue & 0xff00ff) | (mixedGreen & 0x00ff00);
}

bool isSteep(const QPointF& from, const QPointF& to) {
  return std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
}

/// Where a line goes on in columns of the other direction, what lies between them is to be filled.
QPointF extended(const QPointF& from, const QPointF& to, qreal by) {
  const QPointF along = to - from;
  const qreal length = std::hypot(along.x(), along.y());
  return length > 0 ? to + along * (by / length) : to;
}

}  // namespace

/// A straight piece, as seen along the direction in which it is the longer: it is a row of columns,
/// of which each has its middle a little further across.
struct WireRaster::Piece {
  int first = 0;  ///< the columns
  int last = 0;
  double middle = 0;  ///< across, in a column 0
  double slope = 0;   ///< how far the next middle is from one
  double half = 0;    ///< of the extent across
  std::ptrdiff_t nextColumn = 1;
  std::ptrdiff_t nextAcross = 1;
  int least = 0;  ///< what may be painted across
  int most = 0;
  bool isInside = false;  ///< nothing of it lies beyond these
};

WireRaster::WireRaster(QImage& picture, const QRect& clip)
    : pixels_(reinterpret_cast<QRgb*>(picture.bits())),
      stride_(picture.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))),
      clip_(clip & picture.rect()) {}

void WireRaster::drawLine(std::span<const QPointF> points, qreal width, QRgb colour) {
  if (clip_.isEmpty()) return;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const bool turns = i + 1 < points.size() &&
                       isSteep(points[i - 1], points[i]) != isSteep(points[i], points[i + 1]);
    const QPointF end = turns ? extended(points[i - 1], points[i], width / 2) : points[i];
    drawPiece(points[i - 1], end, width, colour);
  }
}

void WireRaster::fillRect(const QRectF& area, QRgb colour) {
  // As a line, which is as wide as it is long at most.
  const qreal x = area.center().x();
  const qreal y = area.center().y();
  if (area.width() >= area.height()) {
    drawPiece({area.left(), y}, {area.right(), y}, area.height(), colour);
  } else {
    drawPiece({x, area.top()}, {x, area.bottom()}, area.width(), colour);
  }
}

/// A column belongs to the piece that its middle is in, so that pieces that follow one another
/// never paint one twice.
void WireRaster::drawPiece(const QPointF& from, const QPointF& to, qreal width, QRgb colour) {
  const bool steep = isSteep(from, to);
  const auto turned = [steep](const QPointF& point) { return steep ? point.transposed() : point; };
  QPointF start = turned(from);
  QPointF end = turned(to);
  if (end.x() < start.x()) std::swap(start, end);
  Piece piece;
  piece.least = steep ? clip_.left() : clip_.top();
  piece.most = steep ? clip_.right() : clip_.bottom();
  if (end.x() <= start.x()) return;
  piece.slope = (end.y() - start.y()) / (end.x() - start.x());
  piece.half = width / 2 * std::sqrt(1 + piece.slope * piece.slope);
  const double above = std::min(start.y(), end.y()) - piece.half;
  const double below = std::max(start.y(), end.y()) + piece.half;
  if (below < piece.least || above > piece.most + 1) return;
  double first = std::max<double>(steep ? clip_.top() : clip_.left(), std::ceil(start.x() - 0.5));
  double last =
      std::min<double>(steep ? clip_.bottom() : clip_.right(), std::ceil(end.x() - 0.5) - 1);
  if (std::abs(piece.slope) > 1e-9) {
    // Only the columns that come near to what may be painted.
    const double enters = start.x() + (piece.least - piece.half - start.y()) / piece.slope;
    const double leaves = start.x() + (piece.most + 1 + piece.half - start.y()) / piece.slope;
    first = std::max(first, std::floor(std::min(enters, leaves)) - 1);
    last = std::min(last, std::ceil(std::max(enters, leaves)) + 1);
  }
  if (first > last) return;
  piece.isInside = above - 1 >= piece.least && below + 1 <= piece.most;
  piece.first = static_cast<int>(first);
  piece.last = static_cast<int>(last);
  piece.middle = start.y() + (0.5 - start.x()) * piece.slope;
  piece.nextColumn = steep ? stride_ : 1;
  piece.nextAcross = steep ? 1 : stride_;
  drawColumns(piece, colour);
}

/// In parts of 256 of a pixel. Each column by itself, so that a part of a line is painted as the
/// whole is.
void WireRaster::drawColumns(const Piece& piece, QRgb colour) {
  const int half = static_cast<int>(piece.half * 256);
  QRgb* column = pixels_ + piece.first * piece.nextColumn;
  for (int i = piece.first; i <= piece.last; ++i, column += piece.nextColumn) {
    const int centre = static_cast<int>((piece.middle + i * piece.slope) * 256);
    if (piece.isInside) {
      drawInside(column, centre - half, centre + half, piece.nextAcross, colour);
    } else {
      drawClipped(column, centre - half, centre + half, piece, colour);
    }
  }
}

/// What most columns are: one pixel or two in part, and those between in full.
inline void WireRaster::drawInside(QRgb* column, int above, int below, std::ptrdiff_t nextAcross,
                                   QRgb colour) {
  const int first = above >> 8;
  const int last = below >> 8;
  QRgb* pixel = column + first * nextAcross;
  if (first == last) {
    *pixel = mixed(*pixel, colour, below - above);
    return;
  }
  *pixel = mixed(*pixel, colour, 256 - (above & 255));
  pixel += nextAcross;
  for (int i = first + 1; i < last; ++i, pixel += nextAcross) *pixel = colour;
  *pixel = mixed(*pixel, colour, below & 255);
}

void WireRaster::drawClipped(QRgb* column, int above, int below, const Piece& piece, QRgb colour) {
  const int first = std::max(above >> 8, piece.least);
  const int last = std::min(below >> 8, piece.most);
  QRgb* pixel = column + first * piece.nextAcross;
  for (int i = first; i <= last; ++i, pixel += piece.nextAcross) {
    const int share = std::min((i + 1) * 256, below) - std::max(i * 256, above);
    *pixel = mixed(*pixel, colour, share);
  }
}

}  // namespace orvuilib
