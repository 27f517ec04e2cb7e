#pragma once

#include <QStringList>
#include <QWidget>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A small picture of one or several curves, over the range of their numbers, with the names of
/// several above them.
class ORVUI_EXPORT Plot final : public QWidget {
 public:
  explicit Plot(QWidget* parent);

  /// A name for each curve; none for a single one.
  void showCurves(std::vector<std::vector<double>> curves, const QStringList& names);

  /// One that can be told apart on the ground of the plot.
  QColor colourOf(std::size_t curve) const;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int headHeight() const;
  void paintNames(QPainter& painter, int left) const;
  void paintCurves(QPainter& painter, const QRectF& place, double least, double most) const;
  void paintCurve(QPainter& painter, const std::vector<double>& curve, const QRectF& place,
                  double least, double most) const;

  std::vector<std::vector<double>> curves_;
  QStringList names_;
};

}  // namespace orvuilib
