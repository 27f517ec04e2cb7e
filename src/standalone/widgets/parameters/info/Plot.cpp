#include "standalone/widgets/parameters/info/Plot.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/info/Records.h"

namespace orvuilib {
namespace {

/// For the components x, y, z and w.
const QColor kCurveColours[] = {
    {0xc9, 0x5a, 0x52}, {0x5f, 0x9e, 0x4c}, {0x4a, 0x82, 0xc4}, {0x9a, 0x86, 0x5a}};

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
  return {unit * 10, unit * 4};
}

void Plot::showCurves(std::vector<std::vector<double>> curves) {
  curves_ = std::move(curves);
  update();
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
  const QRect names(gap, gap / 2, margin - 2 * gap, height() - gap);
  painter.setPen(style::faintText(*this));
  painter.drawText(names, Qt::AlignRight | Qt::AlignTop, most);
  if (range.most > range.least) painter.drawText(names, Qt::AlignRight | Qt::AlignBottom, least);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF place = QRectF(rect()).adjusted(margin, 1.5 * gap, -1.5 * gap, -1.5 * gap);
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    const QColor colour = curves_.size() == 1 ? palette().color(QPalette::Highlight)
                                              : kCurveColours[i % std::size(kCurveColours)];
    painter.setPen(QPen(colour, std::max(1.5, height() / 45.0)));
    painter.setBrush(colour);
    paintCurve(painter, curves_[i], place, range.least, range.most);
  }
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
