#include "standalone/widgets/parameters/info/Plot.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/info/Records.h"

namespace orvuilib {
namespace {

/// For the components x, y, z and w, on a dark and on a light ground.
const QColor kOnDark[] = {
    {0xe0, 0x7b, 0x72}, {0x8b, 0xc4, 0x75}, {0x76, 0xa9, 0xe6}, {0xd6, 0xb9, 0x72}};
const QColor kOnLight[] = {
    {0xb8, 0x45, 0x3d}, {0x3f, 0x7f, 0x2e}, {0x2c, 0x64, 0xa8}, {0x86, 0x6a, 0x24}};

struct Range {
  double least = std::numeric_limits<double>::infinity();
  double most = -std::numeric_limits<double>::infinity();
};

Range rangeOf(const std::vector<std::vector<double>>& curves) {
  Range range;
  for (const auto& curve : curves) {
    for (const double number : curve) {
      if (!std::isfinite(number)) continue;
      range.least = std::min(range.least, number);
      range.most = std::max(range.most, number);
    }
  }
  return range;
}

}  // namespace

Plot::Plot(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Plot::sizeHint() const {
  const int unit = fontMetrics().height();
  return {unit * 10, unit * 4 + headHeight()};
}

void Plot::showCurves(std::vector<std::vector<double>> curves, const QStringList& names) {
  const int former = headHeight();
  curves_ = std::move(curves);
  names_ = names;
  if (headHeight() != former) updateGeometry();
  update();
}

QColor Plot::colourOf(std::size_t curve) const {
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  // A single curve is of the calm third colour.
  const std::size_t which = curves_.size() == 1 ? 2 : curve % std::size(kOnDark);
  return dark ? kOnDark[which] : kOnLight[which];
}

int Plot::headHeight() const {
  return names_.isEmpty() ? 0 : fontMetrics().height() + style::gap(*this) / 2;
}

void Plot::paintNames(QPainter& painter, int left) const {
  const int gap = style::gap(*this);
  const int height = fontMetrics().height();
  for (int i = 0; i < names_.size(); ++i) {
    const QRect sign(left, gap / 2 + height / 2 - gap / 4, 3 * gap, std::max(2, gap / 2));
    painter.fillRect(sign, colourOf(static_cast<std::size_t>(i)));
    left = sign.right() + gap;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(left, gap / 2, width(), height), Qt::AlignVCenter, names_[i]);
    left += fontMetrics().horizontalAdvance(names_[i]) + 3 * gap;
  }
}

void Plot::paintCurves(QPainter& painter, const QRectF& place, double least, double most) const {
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    painter.setPen(QPen(colourOf(i), std::max(1.5, fontMetrics().height() / 11.0)));
    painter.setBrush(colourOf(i));
    paintCurve(painter, curves_[i], place, least, most);
  }
}

void Plot::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int gap = style::gap(*this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.setPen(style::line(*this));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  const Range range = rangeOf(curves_);
  if (range.least > range.most) return;
  const QString least = QString::number(range.least, 'g', 4);
  const QString most = QString::number(range.most, 'g', 4);
  const int margin =
      std::max(fontMetrics().horizontalAdvance(least), fontMetrics().horizontalAdvance(most)) +
      2 * gap;
  const int head = headHeight();
  paintNames(painter, margin);
  const QRect names(gap, head + gap / 2, margin - 2 * gap, height() - head - gap);
  painter.setPen(style::faintText(*this));
  painter.drawText(names, Qt::AlignRight | Qt::AlignTop, most);
  if (range.most > range.least) painter.drawText(names, Qt::AlignRight | Qt::AlignBottom, least);
  const QRectF place = QRectF(rect()).adjusted(margin, head + 1.5 * gap, -1.5 * gap, -1.5 * gap);
  paintCurves(painter, place, range.least, range.most);
}

/// A single record is a dot. Numbers that are not finite leave a gap.
void Plot::paintCurve(QPainter& painter, const std::vector<double>& curve, const QRectF& place,
                      double least, double most) const {
  const auto columns = sampleCurve(curve, static_cast<int>(place.width()));
  const double span = most > least ? most - least : 1;
  const auto height = [&](double number) {
    const double part = most > least ? (number - least) / span : 0.5;
    return place.bottom() - part * place.height();
  };
  QPolygonF line;
  const auto finish = [&] {
    if (line.size() == 1) painter.drawEllipse(line.front(), 2, 2);
    if (line.size() > 1) painter.drawPolyline(line);
    line.clear();
  };
  const double step = place.width() / std::max(1.0, columns.size() - 1.0);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].least > columns[i].most) {
      finish();
      continue;
    }
    const double x = place.left() + step * static_cast<double>(i);
    line.append(QPointF(x, height(columns[i].least)));
    if (columns[i].most > columns[i].least) line.append(QPointF(x, height(columns[i].most)));
  }
  finish();
}

}  // namespace orvuilib
