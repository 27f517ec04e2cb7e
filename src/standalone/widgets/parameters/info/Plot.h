#pragma once

#include <QWidget>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A small picture of one or several curves, over the range of their numbers.
class ORVUI_EXPORT Plot final : public QWidget {
 public:
  explicit Plot(QWidget* parent);

  void showCurves(std::vector<std::vector<double>> curves);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintCurve(QPainter& painter, const std::vector<double>& curve, const QRectF& place,
                  double least, double most) const;

  std::vector<std::vector<double>> curves_;
};

}  // namespace orvuilib
